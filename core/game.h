// What one running game needs: its state, the story texts, the windows, the random numbers and the desktop.
// It is the first argument of whatever prints or opens windows.
#pragma once

#include <functional>

#include "core/game_state.h"
#include "core/text_store.h"
#include "ui/desktop.h"
#include "ui/windows.h"

// Uniform numbers in [0, 1).
using RandomSource = std::function<double()>;

struct Game {
    Game(ui::Windows& shownWindows, ui::Desktop& shownOn, RandomSource source)
        : windows(shownWindows), desktop(shownOn), random(std::move(source)) {}
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    ui::Windows& windows;
    ui::Desktop& desktop;
    RandomSource random;
    TextStore texts;
    GameState state;
};

// A whole number from 0 to below `bound`, drawn by lot.
inline int Draw(const Game& game, int bound) {
    return static_cast<int>(game.random() * bound);
}
