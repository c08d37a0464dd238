#include "app/resume.h"

#include "commands/command_reader.h"
#include "core/stages.h"
#include "saves/snapshot.h"
#include "saves/system_panel.h"

void ResumeGame(Game& game, std::span<const std::uint8_t> snapshot, const std::function<void(std::function<void()>)>& beforeNextEvent) {
    if (game.state.GameStage != GameStage::Title || !IsSnapshot(game, snapshot)) return;
    const bool panelWasOpen = RestoreSnapshot(game, snapshot);
    if (!panelWasOpen) return;
    // A panel stays open for as long as the command runs that opened it, and that command still stands in the state. So it is run again;
    // what it does anew on the way is undone by the second restoring.
    beforeNextEvent([&game, bytes = Bytes(snapshot.begin(), snapshot.end())] {
        RestoreSnapshot(game, bytes);
        RenewSystemPanel(game);
    });
    ReadCommand(game);
}
