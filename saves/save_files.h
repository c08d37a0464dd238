// The saved games, one file each in data/saves of the program folder. File trouble is thrown as GameError before anything has changed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"

// The names of the saved games in the order of their files. A character that no name can have stands as "?".
std::vector<std::string> SaveNames(const Game& game);

// Replaces a game that was saved under the same name.
void SaveGame(Game& game, std::string_view name);

// Whether a game goes on that no saved game holds, so that leaving now would cost the player something. Neither throws nor waits.
bool HasUnsavedSteps(const Game& game);

// Ends the program when the file holds a game that was saved under another name.
void LoadGame(Game& game, std::string_view name);
