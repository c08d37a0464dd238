// The whole state of a running game. Numbers and Booleans are 16 bits wide, as a saved game stores them.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "core/ship_map.h"

constexpr std::size_t MostCarried = 5;    // things that the player can carry at once
constexpr std::size_t TerminalCount = 5;  // of the ship, in the order of terminal/terminal_directory.cpp

struct GameState {
    std::filesystem::path AppPath;  // the program folder
    std::int16_t PlayerX = 0;
    std::int16_t PlayerY = 0;
    std::array<std::int16_t, MostCarried> Inventory{};  // the carried items stand first, then 0
    SectorTable Sectors{};
    std::int16_t CurrentSector = 0;                             // 0 until the game proper begins
    Boolean TerminalLoggedIn = False;                           // at the terminal that is open
    std::int16_t CommandVerb = 0;                               // a verb; NotChosen in this and the next two: none
    std::int16_t CommandObject = 0;                             // an Item; after the verb Go a Direction
    std::int16_t CommandTarget = 0;                             // an Item
    std::int16_t GameStage = 0;                                 // a GameStage
    std::array<std::int16_t, TerminalCount> TerminalMailbox{};  // the kind of the message that waits at each terminal; 0: none
    Boolean GameOver = False;
    std::string DoorCode;  // empty: none

#define STORY_FLAG(Type, Name) Type Name = 0;
#include "core/story_flags.def"
#undef STORY_FLAG
};

struct StoryFlag {
    std::string_view Name;
    std::int16_t GameState::*Value;
};

// All story flags in the order of a saved game.
constexpr auto StoryFlags = std::to_array<StoryFlag>({
#define STORY_FLAG(Type, Name) {#Name, &GameState::Name},
#include "core/story_flags.def"
#undef STORY_FLAG
});

// Puts the player there without a step: no door is asked, nothing falls shut and no step event happens.
void StandIn(GameState& state, std::int16_t sector);
