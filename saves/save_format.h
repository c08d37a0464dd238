// The contents of a saved game: 16-bit little-endian words, the two strings in Windows-1250 with a key added to every character.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/game_files.h"
#include "core/game_state.h"

// What the player reads when a saved game cannot be loaded for what is in it.
constexpr std::string_view LoadError = "Chyba během načítání!";

struct SaveKeys {
    std::int16_t Name;
    std::int16_t DoorCode;
};

// The caller knows that the code page has all characters of the name and of the door code.
Bytes EncodeSave(const GameState& state, std::string_view name, SaveKeys keys);

// The name that the game was saved under. Reads no further; throws GameError when the file is damaged so far.
std::string NameInSave(std::span<const std::uint8_t> file);

// A copy of the current state in which the values of the saved game replace those that a saved game holds; nothing when the game was saved
// under another name. Throws GameError when the file is damaged.
// A saved game holds which doors are open and unlocked, but no exits of the map: these stay as they are in the running game, which is
// meant. So a door may be open by its flag and shut by its exit until the player closes and opens it, and an exit that stood open before
// the load may lead through a door that is locked now. Behind the keypad's door, which cannot be unlocked from inside, only another load
// helps.
std::optional<GameState> DecodeSave(std::span<const std::uint8_t> file, std::string_view name, const GameState& current);

// The words of every saved game beside characters and things: length and key of the name, the player's place, the inventory, the sector,
// how many things each sector holds, the story flags, length and key of the door code, and the mailboxes of the terminals.
constexpr std::size_t FixedSaveWords = 2 + 2 + MostCarried + 1 + std::size_t{LastSector} + StoryFlags.size() + 2 + TerminalCount;

// No saved game is longer, because the two lengths and the count of each sector are 16-bit numbers. What a file holds beyond is not read.
constexpr std::size_t MostSaveBytes = 2 * (FixedSaveWords + (2 + std::size_t{LastSector}) * INT16_MAX);
