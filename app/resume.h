// Going on with a game that was interrupted.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "core/game.h"

// Does nothing when the game has left its title, or when the bytes are no snapshot. If a panel was open in the snapshot, it opens again,
// and this function returns only when the player has closed it. It therefore hands the last step of the restoring to `beforeNextEvent`,
// which must run that step before the player's next event.
void ResumeGame(Game& game, std::span<const std::uint8_t> snapshot, const std::function<void(std::function<void()>)>& beforeNextEvent);
