// The security keypad beside the door of the inner room: the right code locks and unlocks the door.
#pragma once

#include "core/game.h"

void ConnectForm3(Game& game);

// Shows the panel; returns when the player has turned away from it.
void OpenKeypad(Game& game);
