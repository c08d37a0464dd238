// A running game in a folder of its own, with short ways to save, load and list, and to play the System Panel.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include "core/game.h"
#include "saves/save_files.h"
#include "saves/save_format.h"
#include "saves/system_panel.h"
#include "tests/play.h"
#include "text/characters.h"
#include "text/windows1250.h"
#include "ui/errors.h"
#include "ui/memory_desktop.h"

inline GameState StartState() {
    GameState state;
    BuildSectors(state.Sectors);
    StandIn(state, sector::Cabin);
    return state;
}

struct SavedGames {
    SavedGames() {
        const auto programFolder = game.state.AppPath;
        game.state = StartState();
        game.state.AppPath = programFolder;
    }

    std::filesystem::path Folder() const { return game.state.AppPath / "data" / "saves"; }

    void Put(const std::string& fileName, const Bytes& bytes) const {
        std::ofstream(Folder() / fileName, std::ios::binary).write(reinterpret_cast<const char*>(bytes.data()), std::ssize(bytes));
    }

    Bytes FileBytes(const std::string& fileName) const { return ReadFile(Folder() / fileName, "unreadable"); }

    // What the player is told, empty when all went well.
    std::string Save(std::string_view name) {
        return Told([&] { SaveGame(game, name); });
    }
    std::string Load(std::string_view name) {
        return Told([&] { LoadGame(game, name); });
    }
    std::string Told(const std::function<void()>& event) {
        desktop.RunEvent(event);
        const auto boxes = desktop.TakeMessageBoxes();
        return boxes.empty() ? "" : boxes.back().Text;
    }

    std::vector<std::string> Listed() const { return SaveNames(game); }

    // Opens the panel for a verb and lets the player take the steps there. A panel that is still open after the last step ends the program.
    void Open(std::int16_t verb, std::vector<std::function<void()>> steps) {
        std::size_t next = 0;
        desktop.NextEvent = [&, steps = std::move(steps)] {
            if (next == steps.size()) return false;
            steps[next++]();
            return true;
        };
        game.state.CommandVerb = verb;
        desktop.RunEvent([&] { OpenSystemPanel(game); });
    }

    std::function<void()> Line(const std::string& line) {
        return [this, line] {
            for (const char c : line + "\r") desktop.PressKey(panel.Window, panel.Text1, static_cast<char32_t>(c));
        };
    }

    Play play;
    Game& game = play.TheGame();
    ui::Windows& windows = play.Windows();
    ui::MemoryDesktop& desktop = play.Desktop();
    ui::SystemWindow& panel = windows.Form4;
};

constexpr SaveKeys SomeKeys{.Name = 42, .DoorCode = 77};

// Any state that a saved game can hold.
template <typename Random>
GameState RandomState(Random& random) {
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const auto anyWord = [&] { return static_cast<std::int16_t>(below(65536) - 32768); };
    GameState state = StartState();
    StandIn(state, static_cast<std::int16_t>(1 + below(LastSector)));
    for (std::int16_t& item : state.Inventory) item = anyWord();
    for (std::int16_t& kind : state.TerminalMailbox) kind = anyWord();
    for (const StoryFlag& flag : StoryFlags) state.*flag.Value = anyWord();
    for (std::int16_t sector = 1; sector <= LastSector; ++sector) {
        state.Sectors[sector].Items.resize(static_cast<std::size_t>(below(20)));
        for (std::int16_t& item : state.Sectors[sector].Items) item = anyWord();
    }
    for (int length = below(9); length > 0; --length) {
        text::AppendCharacter(state.DoorCode, text::FromWindows1250(static_cast<std::uint8_t>(below(256))));
    }
    return state;
}
