// The inventory: slots, of which the carried items always take the first.
#pragma once

#include "core/game.h"

// From the current sector into the first free slot; a full inventory answers with a refusal and changes nothing.
void TakeItem(Game& game, Item item);

// From the inventory into the current sector. The caller knows that the item is carried.
void DropItem(Game& game, Item item);

// Takes the item out of the inventory and puts it nowhere, because it has been used up. An item that is not carried changes nothing.
void RemoveFromInventory(Game& game, Item item);

bool IsCarried(const GameState& state, Item item);

void RefreshInventoryList(Game& game);
