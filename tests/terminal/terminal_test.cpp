#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;

TEST(Terminal, TestsDnaInTheLaboratoryOnly) {
    Play play = Play::In(sector::Laboratory);
    GameState& state = play.State();
    const auto answer = [&](Item terminal) {
        play.InPanel({"mj-perolax", "test dna processing", "exit"});
        play.Use(terminal, Self);
        return std::string(play.Windows().Form2.Text1.Text(), play.Windows().Form2.Text1.Text().rfind('\n') + 1);
    };
    const std::string missing = "Vložte prosím do terminálových nádob dva vzorky k testování!";
    state.DnaSampleItem = NumberOf(SampleJunett);
    state.DnaReferenceLoaded = 7;  // not True, as a loaded game may hold it
    EXPECT_EQ(answer(LabTerminal), missing);
    EXPECT_EQ(state.DnaSampleItem, NumberOf(SampleJunett));
    state.DnaReferenceLoaded = state.DnaSampleLoaded = True;
    EXPECT_EQ(answer(LabTerminal), "Test DNA negativí! DNA není stejné.");
    EXPECT_EQ(answer(LabTerminal), missing);
    state.DnaSampleLoaded = True;
    state.DnaSampleItem = NumberOf(SampleVega);
    EXPECT_EQ(answer(LabTerminal), "Test DNA pozitivní! DNA je stejné.");
    EXPECT_THAT(play.Told(), ElementsAre(0, sector::CaptainsCabin, 244));
    EXPECT_TRUE(play.Lies(ManInDarkGlasses, sector::CaptainsCabin));
    EXPECT_EQ(state.DnaSampleItem, 0);
    EXPECT_EQ(state.DnaReferenceLoaded, True);
}

TEST(Terminal, LightsUpWhileTheLineIsTypedAndForgetsAfterTwoThousandLines) {
    const std::string refused = "Pro práci s terminálem se musíte nejprve přilogovat! Prosím, zadejte své logovací jméno:";
    Play play = Play::InCabin();
    ui::TerminalWindow& form = play.Windows().Form2;
    play.Desktop().NextEvent = [&] {
        play.Type(form.Window, form.Text2, "ž");
        EXPECT_EQ(form.Label1.TextColour(), ui::PaleCyan);
        EXPECT_EQ(form.Text2.Text(), "ž");
        form.Text1.SetText(std::string(2000, '\n'));
        EXPECT_EQ(play.Desktop().ClickLabel(form.Window, form.Label2), std::nullopt);
        EXPECT_EQ(form.Label1.TextColour(), ui::Teal);
        EXPECT_EQ(form.Text2.Text(), "");
        EXPECT_EQ(form.Text1.Text(), "\r\n\r\n" + refused);
        EXPECT_EQ(form.Text1.Caret(), form.Text1.Text().size());
        play.Type(form.Window, form.Text2, "exit\r");
        return true;
    };
    play.Use(CabinTerminal, Self);
}

}  // namespace
