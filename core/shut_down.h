// The one way out of the game.
#pragma once

#include "core/game.h"

// Unloads the main window and with it every other one, and ends the program: nothing after it runs.
[[noreturn]] void UnloadForm1(Game& game);
