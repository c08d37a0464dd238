#include "core/sector_items.h"

void AddItemToSector(Game& game, std::int16_t sector, Item item, Redraw redraw) {
    game.state.Sectors[sector].Items.push_back(NumberOf(item));
    if (redraw == Redraw::Yes) DescribeSector(game, sector, Output::Append);
}

void RemoveItemFromSector(Game& game, std::int16_t sector, Item item, Redraw redraw) {
    RemoveItem(game.state.Sectors[sector], item);
    if (redraw == Redraw::Yes) DescribeSector(game, sector, Output::Append);
}

bool IsInCurrentSector(const GameState& state, Item item) {
    return HoldsItem(state.Sectors[state.CurrentSector], item);
}
