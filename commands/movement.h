// The verb "Jdi": one step on the ship map, the doors that fall shut behind the player and the story events that wait in the sectors.
#pragma once

#include "core/game.h"

// Does not ask whether the exit is open, because the main window offers only open ones as directions.
void MovePlayer(Game& game, Direction direction);
