// The verbs that act on things and people. None of them asks where the item is: the player could only choose what he sees or carries.
// When nothing was chosen the item is -1, and each verb answers as it does to any item that it does not know.
#pragma once

#include "core/game.h"

void DoExamine(Game& game, Item item);
void DoTalk(Game& game, Item item);
void DoOpen(Game& game, Item item);
void DoClose(Game& game, Item item);
void DoTake(Game& game, Item item);
void DoPut(Game& game, Item item);
void DoUse(Game& game, Item used, Item target);
