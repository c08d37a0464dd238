#include "core/room_view.h"

#include <string>

namespace {

std::string ItemsLine(const SectorRecord& record) {
    if (record.Items.empty()) return "Není tu nic zvláštního.";
    std::string line = "Vidíš ";
    for (const std::int16_t item : record.Items) {
        line += ItemName(Item{item});
        line += ", ";
    }
    line.replace(line.size() - 2, 2, ".");
    return line;
}

// The view names the exits in this order; the direction list of the main window has the order of Ways.
std::string ExitsLine(const SectorRecord& record) {
    std::string names;
    for (const Direction direction : {Direction::North, Direction::South, Direction::West, Direction::East}) {
        const Way& way = WayTo(direction);
        if (record.*way.Exit != True) continue;
        if (!names.empty()) names += ", ";
        names += way.Name;
    }
    return names.empty() ? "Nemůžeš jít nikam." : "Můžeš jít na " + names + ".";
}

}  // namespace

void DescribeSector(Game& game, std::int16_t sector, Output output) {
    const SectorRecord& record = game.state.Sectors[sector];
    ShowStoryText(game, record.TextNo, output);
    ui::TextBox& box = game.windows.Form1.Text1;
    box.AppendText(LineBreak);
    box.AppendText(ItemsLine(record));
    box.AppendText(LineBreak);
    box.AppendText(ExitsLine(record));
    box.MoveCaretToEnd();
}

void RefreshSector(Game& game) {
    DescribeSector(game, game.state.CurrentSector, Output::Append);
}
