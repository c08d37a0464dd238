#include "core/carrying.h"

#include <algorithm>
#include <span>
#include <string>

#include "core/output.h"
#include "core/sector_items.h"
#include "core/verbs.h"

namespace {

// The last carried item moves into the slot, so that no gap stays among the carried ones.
void EmptySlot(std::span<std::int16_t> inventory, std::int16_t& slot) {
    const auto firstEmpty = std::ranges::find(inventory, NumberOf(Item::Nothing));
    const auto last = firstEmpty == inventory.begin() ? firstEmpty : firstEmpty - 1;
    slot = *last;
    *last = NumberOf(Item::Nothing);
}

std::string Message(std::string_view action, Item item) {
    return std::string(action).append(ItemName(item)).append("...");
}

}  // namespace

void TakeItem(Game& game, Item item) {
    const auto slot = std::ranges::find(game.state.Inventory, NumberOf(Item::Nothing));
    if (slot == game.state.Inventory.end()) return WriteOutput(game, "Už toho více neuneseš!");
    *slot = NumberOf(item);
    WriteOutput(game, Message("Vzal jsi ", item));
    RemoveItemFromSector(game, game.state.CurrentSector, item, Redraw::Yes);
    RefreshInventoryList(game);
}

void DropItem(Game& game, Item item) {
    RemoveFromInventory(game, item);
    WriteOutput(game, Message("Položil jsi ", item));
    AddItemToSector(game, game.state.CurrentSector, item, Redraw::Yes);
}

void RemoveFromInventory(Game& game, Item item) {
    const auto slot = std::ranges::find(game.state.Inventory, NumberOf(item));
    if (slot == game.state.Inventory.end()) return;
    EmptySlot(game.state.Inventory, *slot);
    RefreshInventoryList(game);
}

bool IsCarried(const GameState& state, Item item) {
    return std::ranges::find(state.Inventory, NumberOf(item)) != state.Inventory.end();
}

void RefreshInventoryList(Game& game) {
    ui::ListBox& list = game.windows.Form1.List1;
    list.Clear();
    for (const std::int16_t item : game.state.Inventory) {
        if (item > NumberOf(Item::Nothing)) list.Append(ItemName(Item{item}));
    }
    if (list.Entries().empty()) list.Append(ui::NothingThere);
}
