#include "commands/command_builder.h"

#include <array>
#include <string>

#include "commands/command_reader.h"
#include "core/shut_down.h"
#include "core/stages.h"
#include "core/verbs.h"
#include "ui/input.h"

namespace {

const SectorRecord& Here(const GameState& state) {
    return state.Sectors[state.CurrentSector];
}

std::int16_t ItemHere(const GameState& state, int index) {
    return Here(state).Items[static_cast<std::size_t>(index)];
}

void Echo(Game& game, const std::string& sentence) {
    game.windows.Form1.Text2.SetText(sentence);
    game.windows.Form1.Text2.MoveCaretToEnd();
}

// Built from the chosen verb, even when another entry of the verb list has been highlighted since.
std::string Sentence(const Game& game, std::string_view object) {
    return std::string(game.windows.Form1.List2[0].Entry(game.state.CommandVerb)).append(" ").append(object);
}

void ChooseObject(Game& game, std::int16_t item) {
    game.state.CommandObject = item;
    std::string sentence = Sentence(game, ItemName(Item{item}));
    if (game.state.CommandVerb == verb::Use) {
        FillTargetList(game);
        sentence += " na ";
    }
    Echo(game, sentence);
}

void ChooseTarget(Game& game, std::int16_t item) {
    game.state.CommandTarget = item;
    Echo(game, Sentence(game, ItemName(Item{game.state.CommandObject})).append(" na ").append(ItemName(Item{item})));
}

void VerbClick(Game& game) {
    ui::MainWindow& form = game.windows.Form1;
    if (game.state.CommandObject != NotChosen) return;
    game.state.CommandVerb = static_cast<std::int16_t>(form.List2[0].Selected());
    form.List2[1].Clear();
    if (game.state.CommandVerb <= verb::LastObjectVerb) FillObjectList(game);
    Echo(game, std::string(form.List2[0].SelectedEntry()));
}

void ObjectClick(Game& game) {
    const ui::ListBox& objects = game.windows.Form1.List2[1];
    if (game.state.CommandObject != NotChosen || objects.Entry(0) == ui::NothingThere) return;
    // No object is chosen yet, so that the player can click another direction; the command reader takes the one that is selected then.
    if (game.state.CommandVerb == verb::Go) return Echo(game, Sentence(game, objects.SelectedEntry()));
    ChooseObject(game, ItemHere(game.state, objects.Selected()));
}

void TargetClick(Game& game) {
    const ui::ListBox& targets = game.windows.Form1.List2[2];
    if (game.state.CommandTarget != NotChosen) return;
    const bool self = targets.SelectedEntry() == ItemName(Item::Self);
    ChooseTarget(game, self ? NumberOf(Item::Self) : ItemHere(game.state, targets.Selected()));
}

void List1_Click(Game& game) {
    const ui::ListBox& carried = game.windows.Form1.List1;
    const GameState& state = game.state;
    if (state.GameStage == GameStage::Title || state.CommandVerb < verb::Examine || state.CommandVerb > verb::LastObjectVerb) return;
    if (carried.Entry(0) == ui::NothingThere) return;
    const std::int16_t item = state.Inventory[static_cast<std::size_t>(carried.Selected())];
    if (state.CommandObject == NotChosen) {
        if (state.CommandVerb != verb::Take) ChooseObject(game, item);
    } else if (state.CommandTarget == NotChosen && state.CommandObject >= 0 && state.CommandVerb == verb::Use) {
        ChooseTarget(game, item);
    }
}

void List2_Click(Game& game, std::size_t index) {
    constexpr std::array Clicks{VerbClick, ObjectClick, TargetClick};
    if (game.state.GameStage != GameStage::Title) Clicks[index](game);
}

void Text2_KeyDown(Game& game, int keyCode) {
    switch (keyCode) {
        case ui::key::Enter: return ReadCommand(game);
        case ui::key::Escape: return UnloadForm1(game);
        case ui::key::Backspace: return ClearCommand(game);
        default: return;
    }
}

}  // namespace

void FillObjectList(Game& game) {
    ui::ListBox& objects = game.windows.Form1.List2[1];
    const SectorRecord& here = Here(game.state);
    if (game.state.CommandVerb == verb::Go) {
        for (const Direction direction : OpenWays(here)) objects.Append(std::string("na ").append(WayTo(direction).Name));
        if (objects.Entries().empty()) objects.Append(ui::NothingThere);
        return;
    }
    if (game.state.CommandVerb != verb::Put) {
        for (const std::int16_t item : here.Items) objects.Append(ItemName(Item{item}));
    }
    if (here.Items.empty()) objects.Append(ui::NothingThere);
    // This list offers nothing to put down, because that is chosen from the list of carried things.
    if (game.state.CommandVerb == verb::Put) objects.Append(ui::NothingThere);
}

void FillTargetList(Game& game) {
    ui::ListBox& targets = game.windows.Form1.List2[2];
    targets.Clear();
    for (const std::int16_t item : Here(game.state).Items) targets.Append(ItemName(Item{item}));
    targets.Append(ItemName(Item::Self));
}

void ConnectForm1(Game& game) {
    ui::MainWindow& form = game.windows.Form1;
    const auto focusCommandLine = [&game] { ui::GiveFocus(game.windows, &game.windows.Form1.Text2); };

    form.List1.Append(ui::NothingThere);
    for (const std::string_view name : verb::Names) form.List2[0].Append(name);

    form.Text1.GotFocus = focusCommandLine;
    form.Text2.GotFocus = [&form] { form.Text2.SetCaretShape(ui::InputCaret); };
    form.Text2.Change = [&form] { form.Label3.SetTextColour(ui::PaleCyan); };
    form.Text2.KeyDown = [&game](int keyCode) { Text2_KeyDown(game, keyCode); };
    form.List1.GotFocus = focusCommandLine;
    form.List1.Click = [&game] { List1_Click(game); };
    for (std::size_t index = 0; index < form.List2.size(); ++index) {
        form.List2[index].GotFocus = focusCommandLine;
        form.List2[index].Click = [&game, index] { List2_Click(game, index); };
    }
    form.Label1.Click = [&game] { ReadCommand(game); };
    form.Window.CloseBox = [&game] { UnloadForm1(game); };
}
