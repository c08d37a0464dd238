// The contents of a saved game: 16-bit little-endian words, the two strings in Windows-1250 with a key added to every character.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/game_state.h"
#include "core/words.h"

// What the player reads when a saved game cannot be loaded for what is in it.
constexpr std::string_view LoadError = "Chyba během načítání!";

struct SaveKeys {
    std::int16_t Name;
    std::int16_t DoorCode;
};

// All characters of the two strings are in the code page.
Bytes EncodeSave(const GameState& state, std::string_view name, SaveKeys keys);

// The name that the game was saved under. Throws GameError when the file is damaged.
std::string NameInSave(std::span<const std::uint8_t> file);

// The current state with everything in it that the saved game holds; nothing when the game was saved under another name.
// Throws GameError when the file is damaged.
std::optional<GameState> DecodeSave(std::span<const std::uint8_t> file, std::string_view name, const GameState& current);

// No saved game is longer; what a file holds beyond is not read. 119 words stand beside the characters and the items.
constexpr std::size_t MostSaveBytes = std::size_t{2} * (INT16_MAX + 119 + LastSector * INT16_MAX + INT16_MAX);
