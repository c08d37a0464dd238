// Placing things in a sector and taking them out of it, with the view redrawn where the story shows the change.
#pragma once

#include "core/room_view.h"

enum class Redraw { No, Yes };

void AddItemToSector(Game& game, std::int16_t sector, Item item, Redraw redraw);

// An item that is not there leaves the list as it is; the view is redrawn all the same.
void RemoveItemFromSector(Game& game, std::int16_t sector, Item item, Redraw redraw);

bool IsInCurrentSector(const GameState& state, Item item);
