// The saved games, one file each in data/saves of the program folder. File trouble is thrown as GameError: the running game and the saved
// games are then as they were, except when the disk fails in the last step of a save. The new game is then in its file, whole, but may be
// lost when the machine loses power, or in a browser when the page is closed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"

inline constexpr std::string_view SaveExtension = ".TVX";

// The names of the saved games in the order of their files. A character that no name can have stands as "?".
std::vector<std::string> SaveNames(const Game& game);

// Replaces a game that was saved under the same name.
void SaveGame(Game& game, std::string_view name);

// Whether leaving now would cost the player something: the game goes on, and no saved game holds it as it is. Neither throws nor waits.
bool HasUnsavedSteps(const Game& game);

// Ends the program when the file holds a game that was saved under another name.
void LoadGame(Game& game, std::string_view name);
