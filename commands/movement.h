// The verb "Jdi": one step on the ship map, the doors that fall shut behind the player and the story events that wait in the sectors.
#pragma once

#include "core/game.h"

// The exits are not asked: only open ones are offered as directions.
void MovePlayer(Game& game, Direction direction);
