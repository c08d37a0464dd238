// A running game as bytes, from which an interrupted game goes on: the whole state, and what the windows show beyond the state. A snapshot
// holds more than a saved game, but only a program of the same version with the same texts can read it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/game.h"
#include "core/game_files.h"

// Nothing before the game proper has begun, and nothing once the story has ended.
std::optional<Bytes> TakeSnapshot(const Game& game);

// Whether the bytes are whole and a snapshot of this version.
bool IsSnapshot(const Game& game, std::span<const std::uint8_t> bytes);

// Gives the state and the contents of all windows back; shows and hides no window. True when a panel was open when the snapshot was taken.
// `bytes` must be a snapshot.
bool RestoreSnapshot(Game& game, std::span<const std::uint8_t> bytes);
