// The ship terminal's panel: from its start through the login to "exit".
#pragma once

#include "core/game.h"

void ConnectForm2(Game& game);

// Shows the panel for one of the five terminals; returns when the player has left it.
void OpenTerminal(Game& game, Item terminal);
