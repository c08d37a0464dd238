// The game in a browser.
#include <cerrno>

#include "app/resume.h"
#include "app/start_up.h"
#include "saves/durable_file.h"
#include "saves/save_files.h"
#include "saves/save_format.h"
#include "saves/save_inspection.h"
#include "saves/snapshot.h"
#include "saves/system_panel.h"
#include "ui/errors.h"
#include "ui/web/page_bridge.h"
#include "ui/web/web_desktop.h"

namespace {

std::string_view WordFor(Inspection::Finding finding) {
    switch (finding) {
        case Inspection::Finding::Sound: return "sound";
        case Inspection::Finding::TooLong: return "too long";
        case Inspection::Finding::NameRefused: return "name refused";
        case Inspection::Finding::Damaged: break;
    }
    return "damaged";
}

// Where the page puts the snapshot of a game that was interrupted.
Bytes InterruptedGame() {
    return ReadFile("/interrupted", "Rozehranou hru se nepodařilo přečíst.");
}

}  // namespace

// The page may call these at any time, also while `main` waits for an event, so they must not wait themselves.
extern "C" {

// Called before all else.
void TellFacts() {
    namespace page = ui::web::page;
    page::TellErrorNumber("EINVAL", EINVAL);
    page::TellErrorNumber("EIO", EIO);
    page::TellErrorNumber("ENAMETOOLONG", ENAMETOOLONG);
    page::TellErrorNumber("ENOSPC", ENOSPC);
    page::TellErrorNumber("ETIMEDOUT", ETIMEDOUT);
    page::TellPartOfSaveName("extension", SaveExtension);
    page::TellPartOfSaveName("draftPrefix", DraftPrefix);
}

// Judges the file that the page has written to /incoming.
void InspectIncoming() {
    Inspection inspection{.Found = Inspection::Finding::Damaged, .Name = ""};
    try {
        inspection = InspectSave(ReadFile("/incoming", "", MostSaveBytes + 1));
    } catch (const ui::GameError&) {
        // A file that cannot be read counts as damaged.
    }
    ui::web::page::AnswerInspection(WordFor(inspection.Found), inspection.Name);
}

bool WouldLoseSteps(const Game* game) {
    return HasUnsavedSteps(*game);
}

void SnapshotGame(const Game* game) {
    ui::web::page::AnswerSnapshot(TakeSnapshot(*game).value_or(Bytes()));
}

bool CanResume(const Game* game) {
    return IsSnapshot(*game, InterruptedGame());
}
}

int main() {
    ui::Windows windows;
    ui::web::WebDesktop desktop(windows);
    Game game(windows, desktop, ui::web::page::Random);
    desktop.FilesChanged = [&game] { RenewSystemPanel(game); };
    desktop.Resumed = [&game, &desktop] {
        ResumeGame(game, InterruptedGame(), [&desktop](std::function<void()> event) { desktop.RunNext(std::move(event)); });
    };
    try {
        Main(game, "/orvel-tavoren");  // where the page puts the story
    } catch (const ui::GameError& error) {
        windows.BusyPointer = false;
        desktop.ShowMessageBox(error.what(), ui::ErrorTitle);
        ui::web::page::SayTheStoryIsDamaged();
        return 1;
    }
    ui::web::page::OfferGame(&game);
    desktop.Run();
}
