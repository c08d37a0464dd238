// A game that is interrupted anywhere goes on as if it had not been.
#include "app/resume.h"

#include <fstream>
#include <sstream>

#include "app/replay_report.h"
#include "app/replay_script.h"
#include "core/verbs.h"
#include "saves/snapshot.h"
#include "tests/play.h"
#include "ui/errors.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Events(const std::string& walkthrough) {
    std::ifstream script(ORVEL_SOURCE_FOLDER "/tests/walkthroughs/" + walkthrough);
    std::vector<std::string> events;
    for (std::string line; std::getline(script, line);) events.push_back(line);
    return events;
}

// A game that a script plays; when it runs dry in a panel, the game stops there.
struct Played {
    Played() {
        play.TheGame().random = [this] { return random.Draw(); };
    }

    void Do(std::span<const std::string> lines) {
        for (const std::string& line : lines) events << line << '\n';
        play.Desktop().NextEvent = [this] { return script.PlayNextLine(); };
        while (play.Desktop().Running() && script.PlayNextLine()) {
        }
    }

    // Goes on with another game's snapshot and notes what there is to see before anything else happens.
    void Resume(const Bytes& snapshot, std::span<const std::string> rest) {
        for (const std::string& line : rest) events << line << '\n';
        std::function<void()> next;
        const auto playPending = [&] {
            if (next) play.Desktop().RunEvent(std::exchange(next, nullptr));
            if (seen.empty()) seen = Look();
        };
        play.Desktop().NextEvent = [&] {
            playPending();
            return script.PlayNextLine();
        };
        play.Desktop().RunEvent(
            [&] { ResumeGame(play.TheGame(), snapshot, [&](std::function<void()> event) { next = std::move(event); }); });
        playPending();
        while (play.Desktop().Running() && script.PlayNextLine()) {
        }
    }

    // All windows and the state.
    std::string Look() {
        const std::string shown = ShowReport(play.TheGame(), play.Desktop());
        return shown.substr(shown.find("\"modal\"")) + StateReport(play.State());
    }

    Play play;
    std::stringstream events;
    std::ostringstream answers;
    ScriptedRandom random{[] { return 0.5; }};
    ReplayScript script{play.TheGame(), play.Desktop(), random, events, answers};
    std::string seen;
};

void CopySaves(Play& from, Play& to) {
    fs::copy(from.Folder() / "data" / "saves", to.Folder() / "data" / "saves",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

TEST(Resume, BringsBackAnyMomentOfAGame) {
    int inPanels = 0;
    for (const std::string walkthrough : {"winning_game.replay", "curious_game.replay"}) {
        const auto events = Events(walkthrough);
        for (std::size_t played = 5; played < events.size(); played += 61) {
            Played interrupted;
            interrupted.Do(std::span(events).first(played));
            const auto snapshot = TakeSnapshot(interrupted.play.TheGame());
            if (!snapshot) continue;
            if (interrupted.play.Desktop().Modal() != nullptr) ++inPanels;
            Played resumed;
            CopySaves(interrupted.play, resumed.play);
            resumed.Resume(*snapshot, {});
            ASSERT_EQ(resumed.seen, interrupted.Look()) << walkthrough << " after " << played << " lines";
        }
    }
    EXPECT_GT(inPanels, 2);
}

TEST(Resume, LeadsFromATerminalBackIntoTheGameAndToItsEnd) {
    const auto events = Events("winning_game.replay");
    const auto inTerminal = std::ranges::find_if(events, [](const std::string& event) { return event.starts_with("type Form2."); }) + 2;
    const auto cut = static_cast<std::size_t>(inTerminal - events.begin());
    Played whole, interrupted, resumed;
    whole.Do(events);
    interrupted.Do(std::span(events).first(cut));
    ASSERT_NE(interrupted.play.Desktop().Modal(), nullptr);
    resumed.Resume(TakeSnapshot(interrupted.play.TheGame()).value(), std::span(events).subspan(cut));
    EXPECT_FALSE(resumed.play.Desktop().RanDry());
    EXPECT_TRUE(resumed.play.Ended());
    EXPECT_EQ(resumed.play.Output(), whole.play.Output());
    EXPECT_EQ(StateReport(resumed.play.State()), StateReport(whole.play.State()));
}

TEST(Resume, OpensTheSystemPanelWithWhatWasTypedAndTheGamesThatAreThereNow) {
    const std::vector<std::string> typed{"key Form1.Text2 Enter", "key Form1.Text2 Enter", "click Form1.List2(0) Ulož pozici",
                                         "key Form1.Text2 Enter", "type Form4.Text1 žlu"};
    Played interrupted, resumed;
    interrupted.Do(typed);
    std::ofstream(resumed.play.Folder() / "data" / "saves" / "modrá.TVX");
    resumed.Resume(TakeSnapshot(interrupted.play.TheGame()).value(),
                   std::vector<std::string>{"type Form4.Text1 tá", "key Form4.Text1 Enter"});
    EXPECT_THAT(resumed.play.Windows().Form4.List1.Entries(), testing::ElementsAre("modrá"));
    EXPECT_TRUE(fs::exists(resumed.play.Folder() / "data" / "saves" / "žlutá.TVX"));
    EXPECT_FALSE(resumed.play.Windows().Form4.Window.Visible);
}

TEST(Resume, RefusesADamagedSnapshotAndOneOfOtherTexts) {
    Play play = Play::In(sector::Laboratory, {Item::Coil});
    const Bytes snapshot = TakeSnapshot(play.TheGame()).value();
    Play other;
    ASSERT_TRUE(IsSnapshot(other.TheGame(), snapshot));
    for (std::size_t damaged = 0; damaged < snapshot.size(); damaged += 7) {
        Bytes bytes = snapshot;
        bytes[damaged] ^= 0x10;
        EXPECT_FALSE(IsSnapshot(other.TheGame(), bytes)) << damaged;
    }
    EXPECT_FALSE(IsSnapshot(other.TheGame(), std::span(snapshot).first(snapshot.size() / 2)));
    EXPECT_FALSE(IsSnapshot(other.TheGame(), {}));
    const Bytes packed = ReadFile(ORVEL_TEXTS_FILE, "no texts");
    for (const std::size_t changed : {std::size_t{6}, packed.size() - 2}) {  // the first character of all, and the last
        Bytes others = packed;
        others[changed] ^= 1;
        other.TheGame().texts = TextStore::Decode(others);
        EXPECT_FALSE(IsSnapshot(other.TheGame(), snapshot)) << changed;
    }
}

TEST(Resume, LeavesAGameAloneThatHasBegun) {
    Play play = Play::In(sector::Laboratory, {Item::Coil});
    const Bytes snapshot = TakeSnapshot(play.TheGame()).value();
    Play running = Play::InCabin();
    ResumeGame(running.TheGame(), snapshot, [](const auto&) {});
    EXPECT_EQ(running.State().CurrentSector, sector::Cabin);
}

TEST(Snapshot, IsTakenOnlyOfAGameThatCanGoOn) {
    Play play;
    EXPECT_FALSE(TakeSnapshot(play.TheGame()));
    play.Proceed();
    EXPECT_FALSE(TakeSnapshot(play.TheGame()));
    play.Proceed();
    EXPECT_TRUE(TakeSnapshot(play.TheGame()));
    play.State().GameOver = True;
    EXPECT_FALSE(TakeSnapshot(play.TheGame()));
}

}  // namespace
