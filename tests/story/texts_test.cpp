#include <map>
#include <random>
#include <set>

#include "interactions/verbs.h"
#include "tests/play.h"
#include "text/characters.h"

namespace {

using enum Item;

constexpr TextNumber Unused = 210;

// Does everything that can be done, in states of the story drawn at random, and notes which texts are told.
class Everything {
public:
    explicit Everything(Play& played) : play(played) {
        for (TextNumber number = 1; number <= LastText; ++number) numbers[play.Text(number)] = number;
        play.Desktop().NextEvent = [this] { return UsePanel(); };
        NoteTexts();  // of the title
        play.Proceed().Proceed();
        start = play.State();
    }

    void Happens() {
        for (std::int16_t number = 1; number <= NumberOf(LastItem); ++number) {
            const Item item{number};
            for (const auto verb : {DoExamine, DoTalk, DoOpen, DoClose, DoTake}) {
                DrawState();
                Do([&] { verb(play.TheGame(), item); });
            }
            DrawState();
            play.State().Inventory[0] = number;
            for (int target = 0; target < 60; ++target) {
                Do([&] { DoUse(play.TheGame(), item, DrawItem()); });
            }
            Do([&] { DoUse(play.TheGame(), item, Self); });
        }
        for (int step = 0; step < 200; ++step) {
            DrawState();
            const auto ways = play.Exits();
            if (ways.front() != "---") play.Go(ways[static_cast<std::size_t>(Draw(static_cast<int>(ways.size())))]);
            NoteTexts();
        }
    }

    std::set<TextNumber> Told;

private:
    std::int16_t Draw(int bound) { return static_cast<std::int16_t>(random() % static_cast<unsigned>(bound)); }

    Item DrawItem() { return Item{static_cast<std::int16_t>(1 + Draw(NumberOf(LastItem)))}; }

    void DrawState() {
        GameState& state = play.State();
        state = start;
        for (const StoryFlag& flag : StoryFlags()) {
            state.*flag.Value = flag.Name.ends_with("State") ? Draw(6) : static_cast<std::int16_t>(-Draw(2));
        }
        for (std::int16_t& slot : state.Inventory) slot = NumberOf(DrawItem());
        state.DnaSampleItem = NumberOf(SampleVega);
        state.DoorCode = "0123456";
        play.MoveTo(static_cast<std::int16_t>(1 + Draw(LastSector)));
    }

    void Do(const std::function<void()>& deed) {
        play.Form1().Text1.SetText("");
        play.Desktop().RunEvent(deed);
        NoteTexts();
    }

    void NoteTexts() {
        std::string_view output = play.Output();
        if (output.ends_with("\r\n\r\n") || output.find("\r\n\r\n\r\n") != output.npos) Told.insert(Unused);  // it is empty
        while (!output.empty()) {
            const std::string_view line = output.substr(0, output.find('\r'));
            if (const auto found = numbers.find(line); !line.empty() && found != numbers.end()) Told.insert(found->second);
            output.remove_prefix(std::min(output.size(), line.size() + 2));
        }
    }

    bool UsePanel() {
        const ui::Form& form = *play.Desktop().Modal();
        if (&form == &play.Windows().Form2.Window) {
            play.State().CommandObject = NumberOf(LabTerminal);
            play.Type(form, play.Windows().Form2.Text2, "mj-perolax\rtest dna processing\rexit\r");
            return true;
        }
        play.Type(form, play.Windows().Form3.Text1, "0123456\r");
        return !play.Desktop().ClickLabel(form, play.Windows().Form3.Label3);
    }

    Play& play;
    GameState start;
    std::map<std::string, TextNumber, std::less<>> numbers;
    std::mt19937 random{1};
};

TEST(StoryTexts, AreAllToldAndNoneIsMissing) {
    Play play;
    Everything everything(play);
    testing::internal::CaptureStderr();
    for (int round = 0; round < 400 && everything.Told.size() < LastText - 1; ++round) everything.Happens();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    for (TextNumber number = 1; number <= LastText; ++number) EXPECT_EQ(everything.Told.contains(number), number != Unused) << number;
}

TEST(StoryTexts, AreNeitherDoubleNorTooShortNorTooLong) {
    const Play play;
    std::set<std::string> seen;
    for (TextNumber number = 1; number <= LastText; ++number) {
        const std::string text = play.Text(number);
        if (number == Unused) continue;
        EXPECT_TRUE(seen.insert(text).second) << "text " << number << " is a double";
        EXPECT_GE(text::CharCount(text), 60) << "text " << number << ": " << text;
        EXPECT_LE(text::CharCount(text), 1000) << "text " << number << ": " << text;
    }
}

}  // namespace
