#include "commands/command_reader.h"

#include "commands/movement.h"
#include "core/carrying.h"
#include "core/room_view.h"
#include "core/shut_down.h"
#include "core/stages.h"
#include "core/verbs.h"
#include "interactions/verbs.h"
#include "saves/system_panel.h"

namespace {

constexpr std::string_view VersionLine = "Verze programu: 1.0.42 (v1.01)";

// The list offers the open ways in the same order, or a single entry that stands for none.
Direction ChosenDirection(const Game& game) {
    const auto offered = OpenWays(game.state.Sectors[game.state.CurrentSector]);
    const auto chosen = static_cast<std::size_t>(game.windows.Form1.List2[1].Selected());
    return chosen < offered.size() ? offered[chosen] : Direction::None;
}

void RunObjectVerb(Game& game) {
    const ui::MainWindow& form = game.windows.Form1;
    const GameState& state = game.state;
    const ui::ListBox& offered = state.CommandVerb == verb::Put ? form.List1 : form.List2[1];
    if (offered.Entry(0) == ui::NothingThere) return;

    const Item object{state.CommandObject};
    switch (state.CommandVerb) {
        case verb::Examine: return DoExamine(game, object);
        case verb::Use: return DoUse(game, object, Item{state.CommandTarget});
        case verb::Take: return DoTake(game, object);
        case verb::Put: return DoPut(game, object);
        case verb::Open: return DoOpen(game, object);
        case verb::Close: return DoClose(game, object);
        case verb::Talk: return DoTalk(game, object);
        default: return;
    }
}

void RunVerb(Game& game) {
    switch (game.state.CommandVerb) {
        case verb::Go:
            game.state.CommandObject = static_cast<std::int16_t>(ChosenDirection(game));
            return MovePlayer(game, Direction{game.state.CommandObject});
        case verb::Clear: return DescribeSector(game, game.state.CurrentSector, Output::Replace);
        case verb::Load:
        case verb::Save: return OpenSystemPanel(game);
        case verb::Version: return WriteOutput(game, VersionLine);
        case verb::Exit: return UnloadForm1(game);
        default: return RunObjectVerb(game);
    }
}

}  // namespace

void ReadCommand(Game& game) {
    GameState& state = game.state;
    ui::MainWindow& form = game.windows.Form1;
    if (state.GameOver == True) UnloadForm1(game);
    LimitOutput(game, form.Text1);

    if (state.GameStage == GameStage::Title) {
        state.GameStage = GameStage::Introduction;
        form.Text1.SetVisible(true);
        return;
    }
    if (state.GameStage == GameStage::Introduction) {
        state.CurrentSector = sector::Cabin;
        DescribeSector(game, state.CurrentSector, Output::Replace);
        state.GameStage = GameStage::Running;
    } else {
        RunVerb(game);
    }
    ClearCommand(game);
    form.Label3.SetTextColour(ui::Teal);
}

void ClearCommand(Game& game) {
    ui::MainWindow& form = game.windows.Form1;
    form.Text2.SetText("");
    form.List2[1].Clear();
    form.List2[2].Clear();
    game.state.CommandVerb = NotChosen;
    game.state.CommandObject = NotChosen;
    game.state.CommandTarget = NotChosen;
}
