#include "commands/command_builder.h"

#include "core/verbs.h"
#include "tests/play.h"
#include "ui/input.h"

namespace {

using enum Item;
using testing::ElementsAre;
using testing::IsEmpty;

struct CommandLine : testing::Test {
    explicit CommandLine(std::int16_t sector = sector::Cabin) : play(Play::In(sector, {Tools, Newspaper})) {}

    std::string Shown() {
        EXPECT_EQ(line.Caret(), line.Text().size());
        return line.Text();
    }
    void ClickObject(int index) { play.Click(form.Window, form.List2[1], index); }
    void ClickTarget(int index) { play.Click(form.Window, form.List2[2], index); }
    void ClickCarried(int index) { play.Click(form.Window, form.List1, index); }

    Play play;
    ui::MainWindow& form = play.Form1();
    ui::TextBox& line = form.Text2;
};

struct CommandLineAtTheCrossing : CommandLine {
    CommandLineAtTheCrossing() : CommandLine(sector::Crossing) {}
};

TEST_F(CommandLine, EchoesVerbObjectAndTarget) {
    play.Choose(verb::Examine);
    EXPECT_EQ(Shown(), "Prozkoumej");
    play.Choose(verb::Use);
    ClickObject(3);
    EXPECT_EQ(Shown(), "Použij skříň na ");
    EXPECT_THAT(form.List2[2].Entries(), ElementsAre("terminál", "dveře", "dveře do koupelny", "skříň", "okno", "sebe"));
    ClickTarget(5);
    EXPECT_EQ(Shown(), "Použij skříň na sebe");
    EXPECT_EQ(play.State().CommandTarget, 1001);
    ClickTarget(0);
    ClickCarried(0);
    EXPECT_EQ(Shown(), "Použij skříň na sebe");
}

TEST_F(CommandLine, BuildsFromTheChosenVerbWhateverIsHighlighted) {
    play.Choose(verb::Use);
    ClickCarried(0);
    play.Choose(verb::Talk);
    ClickCarried(1);
    EXPECT_EQ(Shown(), "Použij nářadí na noviny");
    EXPECT_EQ(play.State().CommandVerb, verb::Use);
}

TEST_F(CommandLine, TakesOneObjectForOtherVerbs) {
    play.Choose(verb::Open);
    ClickObject(1);
    ClickObject(2);
    ClickCarried(0);
    EXPECT_EQ(Shown(), "Otevři dveře");
    EXPECT_THAT(form.List2[2].Entries(), IsEmpty());
}

TEST_F(CommandLine, IsThrownAwayByBackspace) {
    play.Choose(verb::Use);
    ClickCarried(1);
    play.Press(form.Window, line, ui::key::Backspace);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(form.Label3.TextColour(), ui::PaleCyan);
    EXPECT_THAT(form.List2[1].Entries(), IsEmpty());
    EXPECT_THAT(form.List2[2].Entries(), IsEmpty());
    EXPECT_EQ(form.List2[0].SelectedEntry(), "Použij");
    EXPECT_EQ(play.State().CommandVerb, NotChosen);
    EXPECT_EQ(play.State().CommandObject, NotChosen);
    ClickCarried(0);
    EXPECT_EQ(Shown(), "");
}

TEST_F(CommandLine, OffersWhatTheVerbCanBeDoneWith) {
    play.Choose(verb::Put);
    EXPECT_THAT(form.List2[1].Entries(), ElementsAre("---"));
    ClickObject(0);
    EXPECT_EQ(Shown(), "Polož");
    ClickCarried(1);
    EXPECT_EQ(Shown(), "Polož noviny");
    play.Proceed();
    play.Choose(verb::Take);
    ClickCarried(0);
    EXPECT_EQ(Shown(), "Vezmi");
    play.Choose(verb::Version);
    EXPECT_EQ(Shown(), "Verze");
    EXPECT_THAT(form.List2[1].Entries(), IsEmpty());
    ClickCarried(0);
    EXPECT_EQ(Shown(), "Verze");
}

TEST_F(CommandLine, UsesNothingThatIsNoItem) {
    play.State().Sectors[sector::Cabin].Items.front() = -5;  // as a loaded game may hold it
    play.Choose(verb::Use);
    ClickObject(0);
    ClickCarried(0);
    EXPECT_EQ(play.State().CommandTarget, NotChosen);
}

TEST_F(CommandLineAtTheCrossing, OffersDirectionsUntilItIsRun) {
    play.Choose(verb::Go);
    EXPECT_THAT(form.List2[1].Entries(), ElementsAre("na sever", "na východ", "na západ"));
    ClickObject(0);
    ClickObject(2);
    EXPECT_EQ(Shown(), "Jdi na západ");
    play.State().Sectors[sector::Crossing].South = True;
    play.Choose(verb::Go);
    EXPECT_THAT(form.List2[1].Entries(), ElementsAre("na sever", "na jih", "na východ", "na západ"));
}

TEST_F(CommandLineAtTheCrossing, MarksAnEmptyRoomWithDashes) {
    play.Choose(verb::Put);
    EXPECT_THAT(form.List2[1].Entries(), ElementsAre("---", "---"));
    play.Choose(verb::Take);
    ClickObject(0);
    EXPECT_EQ(Shown(), "Vezmi");
    play.Place(Tools, sector::None);
    play.Place(Newspaper, sector::None);
    play.Choose(verb::Use);
    ClickCarried(0);
    EXPECT_EQ(Shown(), "Použij");
    EXPECT_EQ(play.State().CommandObject, NotChosen);
}

TEST_F(CommandLine, IsBrightWhileACommandIsBuiltAndDimOnceItHasRun) {
    EXPECT_EQ(form.Label3.TextColour(), ui::Teal);
    play.Choose(verb::Version);
    EXPECT_EQ(form.Label3.TextColour(), ui::PaleCyan);
    EXPECT_EQ(play.Desktop().ClickLabel(form.Window, form.Label1), std::nullopt);
    EXPECT_EQ(form.Label3.TextColour(), ui::Teal);
    EXPECT_EQ(Shown(), "");
}

}  // namespace
