#include "core/room_view.h"

#include <array>
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

// The order of the view; the direction list of the main window has another.
std::string ExitsLine(const SectorRecord& record) {
    const auto exits = std::to_array<std::pair<Boolean, std::string_view>>(
        {{record.North, "sever"}, {record.South, "jih"}, {record.West, "západ"}, {record.East, "východ"}});
    std::string names;
    for (const auto& [open, name] : exits) {
        if (open != True) continue;
        if (!names.empty()) names += ", ";
        names += name;
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
