// The game in a browser.
#include "app/start_up.h"
#include "saves/system_panel.h"
#include "ui/errors.h"
#include "ui/web/page.h"
#include "ui/web/web_desktop.h"

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
        return 1;
    }
    desktop.Run();
}
