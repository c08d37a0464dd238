#include "commands/command_reader.h"

#include "app/start_up.h"
#include "core/verbs.h"
#include "tests/play.h"
#include "ui/input.h"

namespace {

using enum Item;

TEST(Title, IsReachedWithoutTheFontButNotWithoutTheTexts) {
    Play play;
    play.Desktop().HasArial = false;
    Main(play.TheGame(), play.Folder());
    const auto boxes = play.Desktop().TakeMessageBoxes();
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].Title, "POZOR!");
    EXPECT_EQ(play.Output(), play.Text(71));
    EXPECT_EQ(play.State().CurrentSector, sector::None);
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
