#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;

struct KeypadPanel : testing::Test {
    // What it shows after the line, which the panel keeps for the next one if it is kept at all.
    std::string Shows(const std::string& line) {
        std::string shown;
        bool typed = false;
        play.Desktop().NextEvent = [&] {
            if (typed) return play.Desktop().ClickLabel(form.Window, form.Label3) == std::nullopt;
            typed = true;
            play.Type(form.Window, form.Text1, line + "\r");
            shown = form.Label1.Caption();
            left = form.Text1.Text();
            return true;
        };
        play.Use(Keypad, Self);
        return shown;
    }

    Play play = Play::In(sector::LabCorridor);
    GameState& state = play.State();
    ui::KeypadWindow& form = play.Windows().Form3;
    std::string left;
};

TEST_F(KeypadPanel, RefusesWhatIsNotTheCode) {
    EXPECT_EQ(Shows(""), "--- ERROR ---");  // no code yet
    state.DoorCode = "0123456";
    for (const std::string code : {"", "012345", "01234567", "0123456 ", " 0123456", "kód"}) {
        EXPECT_EQ(Shows(code), "--- ERROR ---") << code;
        EXPECT_EQ(left, "");
    }
    EXPECT_THAT(play.Said(), ElementsAre("Aktivoval jsi číselník..."));
    EXPECT_EQ(state.KeypadDoorUnlocked, False);
}

TEST_F(KeypadPanel, UnlocksLocksAndIsQuietAfterwards) {
    state.DoorCode = "0123456";
    EXPECT_EQ(Shows("0123456"), "--- OK ---");
    EXPECT_THAT(play.Told(), ElementsAre(0, 182));
    EXPECT_EQ(state.KeypadDoorUnlocked, True);
    EXPECT_EQ(form.Label1.Caption(), "--- SAFE MODE ---");
    EXPECT_EQ(Shows("0123456"), "--- OK ---");
    EXPECT_EQ(play.LastSaid(), "Číselník pípnul, ve dveřích cvaklo a dveře se zamkly.");
    EXPECT_EQ(state.KeypadDoorUnlocked, False);
}

TEST_F(KeypadPanel, KeepsTheCodeWhileTheDoorIsOpen) {
    state.DoorCode = "0123456";
    state.KeypadDoorUnlocked = state.KeypadDoorOpen = True;
    EXPECT_EQ(Shows("0123456\r"), "--- ERROR ---");
    EXPECT_EQ(left, "0123456");
    EXPECT_EQ(play.Said().size(), 3);  // both times
    EXPECT_EQ(play.LastSaid(), "Dveře jsou otevřené, proto nemohou být zamčeny!");
    EXPECT_EQ(form.Text1.Text(), "");  // since it was left
    state.KeypadDoorOpen = 7;
    EXPECT_EQ(Shows("0123456"), "--- OK ---");
}

}  // namespace
