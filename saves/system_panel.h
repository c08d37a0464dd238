// The System Panel, through which games are saved and loaded by name.
#pragma once

#include "core/game.h"

// Connects the panel's events; the start-up calls it once.
void ConnectForm4(Game& game);
