// The System Panel, through which games are saved and loaded by name.
#pragma once

#include <string_view>

#include "core/game.h"

void ConnectForm4(Game& game);

// Whether the panel takes the name, as far as its characters go.
bool CanNameSave(std::string_view name);

// Empties the panel and fills its list. Saved games that cannot be listed are told in a message box, the list then stays empty.
void ListSaves(Game& game);

// Lists the saved games and shows the panel; returns when it has been closed. CommandVerb says whether it loads or saves.
void OpenSystemPanel(Game& game);

// Lists anew when the panel is open, since files came or went behind its back. What is typed stays.
void RenewSystemPanel(Game& game);
