// Plays the game without a screen: events from standard input, reports to standard output.
#include <iostream>

#include "app/replay_script.h"
#include "app/start_up.h"
#include "ui/errors.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: replay PROGRAM_FOLDER\n";
        return 1;
    }
    std::ios::sync_with_stdio(false);
    ui::Windows windows;
    ui::MemoryDesktop desktop(windows);
    ScriptedRandom random(SeededRandom());
    Game game(windows, desktop, [&random] { return random.Draw(); });
    try {
        Main(game, argv[1]);
    } catch (const ui::GameError& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
    ReplayScript script(game, desktop, random, std::cin, std::cout);
    desktop.NextEvent = [&script] { return script.PlayNextLine(); };
    while (desktop.Running() && script.PlayNextLine()) {
    }
    if (!desktop.Running() && !desktop.RanDry()) std::cout << "{\"ended\":true}\n";
}
