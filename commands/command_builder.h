// The main window's events: clicks in its lists assemble a command, which is echoed in the command line as a Czech sentence.
#pragma once

#include "core/game.h"

// Also fills the two lists that a new game shows filled.
void ConnectForm1(Game& game);

// Appends what the chosen verb can be done with.
void FillObjectList(Game& game);

// Lists what a thing can be used on, the player himself last.
void FillTargetList(Game& game);
