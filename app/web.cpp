// The game in a browser.
#include "app/start_up.h"
#include "ui/errors.h"
#include "ui/web/page.h"
#include "ui/web/web_desktop.h"

int main() {
    ui::Windows windows;
    ui::web::WebDesktop desktop(windows);
    Game game(windows, desktop, ui::web::page::Random);
    try {
        Main(game, "/orvel-tavoren");  // where the page puts the story
    } catch (const ui::GameError& error) {
        windows.BusyPointer = false;
        desktop.ShowMessageBox(error.what(), "Chyba");
        ui::web::page::SayTheStoryIsDamaged();
        return 1;
    }
    desktop.Run();
}
