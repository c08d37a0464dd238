// The verbs that act on things and people. None of them asks where the item is: the player could only choose what he sees or carries.
// Without a chosen object the item is -1, which answers like any item that a verb does not know.
#pragma once

#include "core/game.h"

void DoExamine(Game& game, Item item);
void DoTalk(Game& game, Item item);
void DoOpen(Game& game, Item item);
void DoClose(Game& game, Item item);
void DoTake(Game& game, Item item);
void DoPut(Game& game, Item item);
void DoUse(Game& game, Item used, Item target);
