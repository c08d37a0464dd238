// The few things that every verb does with its answer.
#pragma once

#include "core/output.h"
#include "core/sector_items.h"

inline void Tell(Game& game, TextNumber text) {
    ShowStoryText(game, text);
}

// Into the current sector, whose view is shown again.
inline void Place(Game& game, Item item) {
    AddItemToSector(game, game.state.CurrentSector, item, Redraw::Yes);
}

// Out of the current sector, whose view is shown again.
inline void Remove(Game& game, Item item) {
    RemoveItemFromSector(game, game.state.CurrentSector, item, Redraw::Yes);
}

// True for the first call, which sets the flag. Every value but False counts as set, because a loaded game may hold any.
inline bool FirstTime(Boolean& flag) {
    if (flag != False) return false;
    flag = True;
    return true;
}
