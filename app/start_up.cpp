#include "app/start_up.h"

#include <chrono>
#include <csignal>
#include <memory>
#include <random>

#include "commands/command_builder.h"
#include "core/output.h"
#include "saves/system_panel.h"
#include "terminal/keypad.h"
#include "terminal/terminal_session.h"
#include "ui/input.h"

namespace {

constexpr TextNumber Introduction = 71;

void ConnectWindows(Game& game) {
    ConnectForm1(game);
    ConnectForm2(game);
    ConnectForm3(game);
    ConnectForm4(game);
    // A click on the backdrop leads back to the game.
    game.windows.Form5.Window.GotFocus = [&game] { ui::GiveFocus(game.windows, game.windows.Form1.Window); };
}

void WarnOfMissingFont(Game& game) {
    if (game.desktop.HasFontFamily("Arial")) return;
    game.desktop.ShowMessageBox(
        "Váš systém bohužel neobsahuje písmo ARIAL, které je ke hře doporučeno. Text nemusí být zobrazován správně!", "POZOR!");
}

// Keeps the title bar and the inner area and cuts the outer frame away.
ui::RoundRegion RegionWithoutFrame(const ui::FormLayout& layout) {
    return {
        .Left = 3, .Top = 3, .Right = layout.Width / ui::TwipsPerPixel + 3, .Bottom = layout.Height / ui::TwipsPerPixel + 23, .Ellipse = 4};
}

void DressWindows(ui::Windows& windows, const std::filesystem::path& pictures) {
    windows.Form1.Window.Region = RegionWithoutFrame(windows.Form1.Window.Layout);
    for (ui::Form* form : windows.All) {
        if (form->Layout.Backdrop) continue;
        form->AlwaysOnTop = true;
        form->Icon = pictures / "icon";
    }
    windows.Form1.Window.Picture = pictures / "gui1";
    windows.Form2.Window.Picture = pictures / "gui2";
    windows.Form3.Window.Picture = pictures / "gui3";
    windows.Form4.Window.Picture = pictures / "gui4";
}

}  // namespace

RandomSource SeededRandom() {
    const auto now = std::chrono::system_clock::now().time_since_epoch().count();
    auto generator = std::make_shared<std::mt19937_64>(static_cast<std::uint64_t>(now));
    return [generator] { return std::generate_canonical<double, 53>(*generator); };
}

void Main(Game& game, const std::filesystem::path& appPath) {
    // With the signal ignored, a write beyond the limit of a file's size fails like one on a full disk, instead of killing the game.
    std::signal(SIGXFSZ, SIG_IGN);
    ConnectWindows(game);
    game.windows.BusyPointer = true;
    game.state.AppPath = appPath;
    WarnOfMissingFont(game);
    game.texts = PrepareTextStore(appPath);
    BuildSectors(game.state.Sectors);
    StandIn(game.state, sector::Cabin);
    game.state.CurrentSector = sector::None;  // until the introduction has been read
    ShowStoryText(game, Introduction, Output::Replace);
    DressWindows(game.windows, appPath / "data" / "pics");
    game.windows.BusyPointer = false;
    ui::Show(game.windows, game.windows.Form5.Window);
    ui::Show(game.windows, game.windows.Form1.Window);
}
