#include "commands/command_reader.h"

#include "app/start_up.h"
#include "core/verbs.h"
#include "tests/play.h"
#include "ui/input.h"

namespace {

using enum Item;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr TextNumber Introduction = 71;

TEST(Title, LeadsThroughTheIntroductionIntoTheCabin) {
    Play play;
    EXPECT_EQ(play.Output(), play.Text(Introduction));
    EXPECT_FALSE(play.Form1().Text1.Visible());
    const auto clickEveryList = [&] {
        play.Choose(verb::Examine);
        play.Click(play.Form1().Window, play.Form1().List1, 0);
        EXPECT_EQ(play.Form1().Text2.Text(), "");
    };
    clickEveryList();
    play.Proceed();
    EXPECT_TRUE(play.Form1().Text1.Visible());
    EXPECT_EQ(play.Output(), play.Text(Introduction));
    EXPECT_EQ(play.State().CurrentSector, sector::None);
    clickEveryList();
    play.Proceed();
    EXPECT_THAT(play.Told(), ElementsAre(sector::Cabin));
    EXPECT_EQ(play.Output(), play.View());
    EXPECT_EQ(play.State().CurrentSector, sector::Cabin);
}

TEST(Title, IsReachedWithoutTheFontButNotWithoutTheTexts) {
    Play play;
    play.Desktop().HasArial = false;
    Main(play.TheGame(), play.Folder());
    const auto boxes = play.Desktop().TakeMessageBoxes();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].Title, "POZOR!");
    EXPECT_EQ(play.Output(), play.Text(Introduction));
}

TEST(Command, RunsNothingWithoutAVerbOrADirection) {
    Play play = Play::In(sector::Crossing);
    const std::string before = play.View();
    play.Proceed();
    EXPECT_EQ(play.Output(), before);
    play.Choose(verb::Go);
    play.Proceed();
    EXPECT_EQ(play.Output(), before);
    EXPECT_EQ(play.State().CurrentSector, sector::Crossing);
    EXPECT_EQ(play.State().CommandVerb, NotChosen);
}

TEST(Command, WithoutAnObjectAnswersLikeOneForAStrangeThing) {
    Play play = Play::InCabin({CabinKey});
    const auto answers = [&](std::int16_t verb) {
        play.Choose(verb);
        play.Proceed();
        return play.Said();
    };
    EXPECT_THAT(answers(verb::Examine), IsEmpty());
    EXPECT_THAT(answers(verb::Use), ElementsAre("Nezdá se, že by to mělo fungovat."));
    EXPECT_THAT(answers(verb::Take), ElementsAre("Tohle si nemůžeš vzít!"));
    EXPECT_THAT(answers(verb::Put), ElementsAre("Tohle nemůžeš položit!"));
    EXPECT_THAT(answers(verb::Open), ElementsAre("Toto se nedá otevřít!"));
    EXPECT_THAT(answers(verb::Close), ElementsAre("Toto se nedá zavřít!"));
    EXPECT_THAT(answers(verb::Talk), ElementsAre("S tímto nemůžeš mluvit!"));
}

TEST(Command, IsNotRunWhereDashesSayThatThereIsNothing) {
    Play play = Play::In(sector::Crossing, {CabinKey});
    for (const std::int16_t verb : {verb::Examine, verb::Use, verb::Take, verb::Open, verb::Close, verb::Talk}) {
        play.Choose(verb);
        play.ChooseObject(CabinKey);
        play.Proceed();
        EXPECT_THAT(play.Said(), IsEmpty()) << verb;
    }
    play.Put(CabinKey);
    EXPECT_TRUE(play.Sees(CabinKey));
    play.Choose(verb::Put);
    play.Proceed();
    EXPECT_THAT(play.Said(), IsEmpty());
}

TEST(Game, EndsAtTheCommandAfterItsStoryHasEnded) {
    Play play = Play::InCabin();
    play.State().GameOver = 7;  // not True: a loaded game may hold anything
    play.Take(Tools);
    EXPECT_FALSE(play.Ended());
    play.State().GameOver = True;
    play.Put(Tools);
    EXPECT_TRUE(play.Ended());
    EXPECT_TRUE(play.Carries(Tools));
}

TEST(Game, EndsByVerbKeyAndCloseBox) {
    Play byVerb = Play::InCabin();
    byVerb.Choose(verb::Exit);
    byVerb.Proceed();
    EXPECT_TRUE(byVerb.Ended());
    Play byKey;
    byKey.Press(byKey.Form1().Window, byKey.Form1().Text2, ui::key::Escape);
    EXPECT_TRUE(byKey.Ended());
    Play byBox;
    EXPECT_EQ(byBox.Desktop().Close(byBox.Form1().Window), std::nullopt);
    EXPECT_TRUE(byBox.Ended());
    for (const ui::Form* form : byBox.Windows().All) EXPECT_FALSE(form->Visible);
}

}  // namespace
