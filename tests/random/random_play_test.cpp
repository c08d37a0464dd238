// Long random play. ORVEL_RANDOM_EVENTS asks for more events than the quick run has, ORVEL_RANDOM_SEED for other ones. A failure prints
// the lines that lead to it, ready for the headless player.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/replay_script.h"
#include "app/start_up.h"
#include "core/stages.h"
#include "core/verbs.h"
#include "tests/play.h"
#include "tests/random/invariants.h"
#include "tests/random/random_player.h"

namespace fs = std::filesystem;

namespace {

constexpr int QuickEvents = 10000;
constexpr int EventsOfAGame = 500;

int Setting(const char* name, int otherwise) {
    const char* value = std::getenv(name);
    return value == nullptr ? otherwise : std::atoi(value);
}

// All games of the run save into this folder, so that they load each other's games too.
fs::path MakeProgramFolder(const TemporaryFolder& folder) {
    fs::create_directories(folder.Path / "data" / "saves");
    fs::create_symlink(ORVEL_TEXTS_FILE, folder.Path / "data" / "texs.dat");
    return folder.Path;
}

// Grows with every change of any control.
std::uint64_t ChangesOf(const ui::Windows& windows) {
    std::uint64_t sum = 0;
    for (const ui::Form* form : windows.All) {
        for (const ui::Control& control : form->Controls) sum += std::visit([](const auto* each) { return each->Changes(); }, control);
    }
    return sum;
}

using Lines = std::vector<std::string>;

// The events of the written walkthroughs, from whose middle games begin.
std::vector<Lines> Walkthroughs() {
    std::vector<Lines> walkthroughs;
    for (const auto& file : fs::directory_iterator(ORVEL_SOURCE_FOLDER "/tests/walkthroughs")) {
        if (file.path().extension() != ".replay") continue;
        Lines events;
        std::ifstream input(file.path());
        for (std::string line; std::getline(input, line);) {
            if (!line.empty() && !line.starts_with('#') && line != "show" && line != "state") events.push_back(line);
        }
        walkthroughs.push_back(std::move(events));
    }
    return walkthroughs;
}

class RandomGame {
public:
    RandomGame(RandomPlayer& curious, const fs::path& folder, Lines opening) : player(curious), told(std::move(opening)) {
        Main(game, folder);
        desktop.NextEvent = [this] { return PlayNextEvent(); };
    }

    // Returns how many events were played after the opening.
    int Play(int events) {
        left = events;
        while (desktop.Running() && PlayNextEvent()) {
        }
        if (testing::Test::HasFailure()) PrintPlayed();
        return events - left;
    }

private:
    bool PlayNextEvent() {
        if (left == 0 || testing::Test::HasFailure()) return false;
        const bool opening = played.size() < told.size();
        if (!opening) --left;
        const std::string line = opening ? told[played.size()] : player.NextMove(game, desktop);
        played.push_back(line);
        const std::size_t count = played.size();
        const Before before = Remember(line);
        input.clear();
        input.str(line);
        output.str("");
        script.PlayNextLine();
        // When the event opened a panel, the output holds the answers to what was played there, and says nothing of this event.
        const bool refused = played.size() == count && !output.str().empty();
        Check(before, refused);
        return true;
    }

    struct Before {
        GameState State;
        std::uint64_t Changes;
        const ui::Form* Active;
        bool MayEnd, MayLoad;
    };

    Before Remember(const std::string& line) const {
        const GameState& state = game.state;
        const bool runs = desktop.Modal() == nullptr && (line == "key Form1.Text2 Enter" || line == "click Form1.Label1");
        const bool leaves = runs && (state.GameOver == True || (state.GameStage == GameStage::Running && state.CommandVerb == verb::Exit));
        return {.State = state,
                .Changes = ChangesOf(game.windows),
                .Active = game.windows.Active,
                .MayEnd = leaves || line == "close Form1" || line == "key Form1.Text2 Escape",
                .MayLoad = state.CommandVerb == verb::Load};
    }

    void Check(const Before& before, bool refused) {
        if (refused) {
            ExpectTheSame(before.State, game.state);
            EXPECT_EQ(ChangesOf(game.windows), before.Changes);
            EXPECT_EQ(game.windows.Active, before.Active);
        }
        if (desktop.RanDry() || ended) return;
        ended = before.MayEnd && !refused;  // perhaps from inside the panel that an event has opened
        EXPECT_EQ(desktop.Running(), !ended);
        ExpectNoFaults(desktop);
        ExpectSoundState(game.state);
        ExpectSoundWindows(game, desktop);
        if (!before.MayLoad) ExpectOnlyProgress(before.State, game.state);
        loaded = loaded || before.MayLoad;
        if (!loaded) ExpectShutDoorsToStopThePlayer(game.state);
    }

    void PrintPlayed() const {
        std::ostringstream lines;
        for (const std::string& line : played) lines << line << '\n';
        ADD_FAILURE() << "after " << played.size() << " events:\n" << lines.str();
    }

    RandomPlayer& player;
    Lines told, played;
    int left = 0;
    bool loaded = false, ended = false;
    ui::Windows windows;
    ui::MemoryDesktop desktop{windows};
    ScriptedRandom random{[this] { return player.Below(1 << 20) / static_cast<double>(1 << 20); }};
    Game game{windows, desktop, [this] { return random.Draw(); }};
    std::istringstream input;
    std::ostringstream output;
    ReplayScript script{game, desktop, random, input, output};
};

TEST(RandomPlay, KeepsTheGameSound) {
    const TemporaryFolder temporary;
    const fs::path folder = MakeProgramFolder(temporary);
    const std::vector<Lines> walkthroughs = Walkthroughs();
    ASSERT_FALSE(walkthroughs.empty());
    RandomPlayer player(static_cast<std::uint64_t>(Setting("ORVEL_RANDOM_SEED", 1)));
    int left = Setting("ORVEL_RANDOM_EVENTS", QuickEvents);
    while (left > 0 && !HasFailure()) {
        Lines opening;
        if (player.Below(4) != 0) {
            opening = walkthroughs[static_cast<std::size_t>(player.Below(static_cast<int>(walkthroughs.size())))];
            opening.resize(static_cast<std::size_t>(player.Below(static_cast<int>(opening.size()))));
        }
        left -= RandomGame(player, folder, std::move(opening)).Play(EventsOfAGame);
    }
}

}  // namespace
