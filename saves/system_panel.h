// The System Panel, through which games are saved and loaded by name.
#pragma once

#include "core/game.h"

void ConnectForm4(Game& game);

// Empties the panel and fills its list. Saved games that cannot be listed are told in a message box, the list then stays empty.
void ListSaves(Game& game);

// Lists the saved games and shows the panel; returns when it has been closed. CommandVerb says whether it loads or saves.
void OpenSystemPanel(Game& game);
