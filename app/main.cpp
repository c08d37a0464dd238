// The game in its windows.
#include <filesystem>
#include <iostream>
#include <string_view>

#include "app/start_up.h"
#include "ui/errors.h"
#include "ui/qt/application.h"
#include "ui/qt/qt_desktop.h"

namespace {

namespace fs = std::filesystem;

// The folder of the name that the program was called by, if it has data, because an installed game stands as a link among each player's
// own data. Otherwise the folder of the program's file, to which the link leads.
fs::path ProgramFolder(std::string_view calledAs) {
    if (calledAs.find('/') != std::string_view::npos) {
        const fs::path folder = fs::absolute(calledAs).parent_path();
        if (fs::exists(folder / "data")) return folder;
    }
    return fs::read_symlink("/proc/self/exe").parent_path();
}

}  // namespace

int main(int argc, char** argv) {
    if (const auto whyNot = ui::qt::ChoosePlatform()) {
        std::cerr << *whyNot << '\n';
        return 1;
    }
    const fs::path folder = ProgramFolder(argv[0]);
    const ui::qt::Application application(argc, argv);
    ui::Windows windows;
    ui::qt::QtDesktop desktop(windows);
    Game game(windows, desktop, SeededRandom());
    try {
        Main(game, folder);
    } catch (const ui::GameError& error) {
        windows.BusyPointer = false;
        desktop.ShowMessageBox(error.what(), ui::ErrorTitle);
        return 1;
    }
    desktop.Run();
}
