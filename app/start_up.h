// Start-up: connects every handler to its control and brings the game to its title.
#pragma once

#include <filesystem>

#include "core/game.h"

// Seeded from the clock.
RandomSource SeededRandom();

// `appPath` is the program folder. Throws GameError when the story texts are missing or damaged; no window has been shown by then.
void Main(Game& game, const std::filesystem::path& appPath);
