// The game in a browser.
#include "app/start_up.h"
#include "saves/save_files.h"
#include "saves/save_format.h"
#include "saves/save_inspection.h"
#include "saves/system_panel.h"
#include "ui/errors.h"
#include "ui/web/page.h"
#include "ui/web/web_desktop.h"

// The page may ask these at any time, also while the program sleeps; so they must not wait.
extern "C" {

// Judges the file that the page has put there.
void InspectIncoming() {
    Inspection inspection{.Found = Inspection::Finding::Damaged, .Name = ""};
    try {
        inspection = InspectSave(ReadWholeFile("/incoming", "", MostSaveBytes + 1));
    } catch (const ui::GameError&) {
        // What cannot be read is as good as damaged.
    }
    ui::web::page::AnswerInspection(static_cast<int>(inspection.Found), inspection.Name);
}

bool WouldLoseSteps(const Game* game) {
    return HasUnsavedSteps(*game);
}
}

int main() {
    ui::Windows windows;
    ui::web::WebDesktop desktop(windows);
    Game game(windows, desktop, ui::web::page::Random);
    desktop.FilesChanged = [&game] { RenewSystemPanel(game); };
    try {
        Main(game, "/orvel-tavoren");  // where the page puts the story
    } catch (const ui::GameError& error) {
        windows.BusyPointer = false;
        desktop.ShowMessageBox(error.what(), "Chyba");
        ui::web::page::SayTheStoryIsDamaged();
        return 1;
    }
    ui::web::page::OfferGame(&game);
    desktop.Run();
}
