// A running game as bytes, to be gone on with where it was interrupted: the whole state, and what the windows show that the state does not
// give. Saved games hold less, but outlive the version; a snapshot is read by the same program with the same texts alone.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "core/game.h"
#include "core/words.h"

// Nothing while there is no game to go on with: before it has begun, and once the hero is dead or home.
std::optional<Bytes> TakeSnapshot(const Game& game);

// Whether the bytes are whole and a snapshot of this version.
bool IsSnapshot(const Game& game, std::span<const std::uint8_t> bytes);

// Brings the state and the contents of all windows to what they were; which windows are shown stays as it is. True when a panel was open
// then. `bytes` must be a snapshot.
bool RestoreSnapshot(Game& game, std::span<const std::uint8_t> bytes);
