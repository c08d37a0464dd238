#include "app/resume.h"

#include "commands/command_reader.h"
#include "core/stages.h"
#include "saves/snapshot.h"
#include "saves/system_panel.h"

void ResumeGame(Game& game, std::span<const std::uint8_t> snapshot, const std::function<void(std::function<void()>)>& beforeNextEvent) {
    if (game.state.GameStage != GameStage::Title || !IsSnapshot(game, snapshot)) return;
    const bool panelWasOpen = RestoreSnapshot(game, snapshot);
    if (!panelWasOpen) return;
    // A panel is open only while the command runs that opened it. The snapshot's state still holds that command, so it is run again to open
    // the panel. The command repeats its effects on the way, and restoring a second time undoes them.
    beforeNextEvent([&game, bytes = Bytes(snapshot.begin(), snapshot.end())] {
        RestoreSnapshot(game, bytes);
        RenewSystemPanel(game);
    });
    ReadCommand(game);
}
