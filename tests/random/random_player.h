// A player who does not know the story but is curious: mostly plays as a person would, prefers what was tried least, and now and then
// does something senseless. Every move is one line of the headless player's event language, so that what went wrong can be played again.
#pragma once

#include <map>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "core/game.h"
#include "ui/memory_desktop.h"

class RandomPlayer {
public:
    explicit RandomPlayer(std::uint64_t seed) : random(seed) {}

    std::string NextMove(const Game& game, const ui::MemoryDesktop& desktop);

    int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

private:
    bool Chance(int percent) { return Below(100) < percent; }
    template <typename T>
    const T& AnyOf(std::span<const T> choices) {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
    }

    std::string Command(const Game& game);
    std::string ChooseVerb();
    std::string ChooseObject(const Game& game);
    std::string ChooseTarget(const Game& game);
    std::string ClickCurious(const Game& game, const ui::ListBox& list);
    std::string RunCommand();

    std::string TerminalMove(const Game& game);
    std::string TerminalLine(const Game& game);
    std::string Garble(std::string_view line);
    std::string KeypadMove(const Game& game);
    std::string SystemMove(const Game& game);
    std::string SenselessMove(const Game& game);

    std::mt19937_64 random;
    std::map<std::string, int> tried;  // by where, what so far and what next
};
