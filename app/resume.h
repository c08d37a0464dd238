// Going on with a game that was interrupted.
#pragma once

#include <cstdint>
#include <functional>
#include <span>

#include "core/game.h"

// From the title; later, and with bytes that are no snapshot, nothing happens. A panel that was open opens again and returns when it is
// closed, as it did; what is given to `beforeNextEvent` must be run before the next event, in the panel or behind it.
void ResumeGame(Game& game, std::span<const std::uint8_t> snapshot, const std::function<void(std::function<void()>)>& beforeNextEvent);
