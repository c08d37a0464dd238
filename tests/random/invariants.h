// What holds of the game between two events, whatever the player does.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "core/game.h"
#include "ui/memory_desktop.h"

void ExpectSoundState(const GameState& state);
void ExpectSoundWindows(const Game& game, const ui::MemoryDesktop& desktop);

// A load brings the flags of the doors but leaves their exits as they are: until then the two agree.
void ExpectShutDoorsToStopThePlayer(const GameState& state);

// Without a load in between.
void ExpectOnlyProgress(const GameState& before, const GameState& now);

void ExpectTheSame(const GameState& before, const GameState& now);

// A desktop's view of the windows: it copies only what the change counters tell it to, and must never be out of date.
class Mirror {
public:
    explicit Mirror(const ui::Windows& windows);

    void Follow();

    // Grows with every change of any control.
    std::uint64_t Changes() const;

private:
    struct Copy {
        ui::Control Original;
        std::uint64_t Changes = 0, Replacements = 0;
        std::string Text;  // or the caption
        std::vector<std::string> Entries;
        std::size_t Caret = 0;
        int Selected = -1;
    };

    static void Follow(Copy& copy, const ui::TextBox& box);
    static void Follow(Copy& copy, const ui::ListBox& list);
    static void Follow(Copy& copy, const ui::Label& label);

    std::vector<Copy> copies;
};
