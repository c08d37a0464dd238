// The System Panel, through which games are saved and loaded by name.
#pragma once

#include <string_view>

#include "core/game.h"

void ConnectForm4(Game& game);

// Whether the panel takes the name. To load, it takes only names of its list besides.
bool CanNameSave(std::string_view name);

// Lists the saved games and shows the panel; returns when it has been closed. CommandVerb says whether the panel loads or saves.
// When the saved games cannot be listed, a message box says why and the list stays empty.
void OpenSystemPanel(Game& game);

// Lists the saved games anew if the panel is open, for a desktop where files come and go while it is. What the player has typed stays.
void RenewSystemPanel(Game& game);
