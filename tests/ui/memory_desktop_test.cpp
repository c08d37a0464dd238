#include "ui/memory_desktop.h"

#include <gmock/gmock.h>

#include "tests/play.h"
#include "ui/input.h"

namespace {

using testing::ElementsAre;
using testing::Optional;

TEST(Focus, GoesToThePanelAndBack) {
    Play play = Play::InCabin();
    std::vector<std::string_view> active;
    play.Desktop().NextEvent = [&] {
        ui::TerminalWindow& form = play.Windows().Form2;
        EXPECT_EQ(play.Desktop().Focus(form.Window, &form.Text1), std::nullopt);
        EXPECT_THAT(form.Window.Focused, Optional(ui::Control(&form.Text2)));
        active.push_back(play.Windows().Active->Layout.Name);
        play.Type(form.Window, form.Text2, "exit\r");
        return true;
    };
    play.Use(Item::CabinTerminal, Item::Self);
    active.push_back(play.Windows().Active->Layout.Name);
    EXPECT_THAT(active, ElementsAre("Form2", "Form1"));
}

TEST(ModalPanel, KeepsTheOtherWindowsFromInput) {
    Play play = Play::InCabin();
    ui::MainWindow& form = play.Form1();
    EXPECT_THAT(play.Desktop().PressKey(play.Windows().Form2.Window, play.Windows().Form2.Text2, U'a'),
                Optional(std::string("Form2 is hidden")));
    play.Desktop().NextEvent = [&] {
        EXPECT_THAT(play.Desktop().ClickEntry(form.Window, form.List2[0], 0), Optional(std::string("Form2 is modal")));
        play.Type(play.Windows().Form2.Window, play.Windows().Form2.Text2, "EXIT\r");
        return true;
    };
    play.Use(Item::CabinTerminal, Item::Self);
    EXPECT_FALSE(play.Ended());
    EXPECT_EQ(play.Desktop().Modal(), nullptr);
    EXPECT_TRUE(form.Text2.Text().empty());
}

TEST(ModalPanel, EndsTheProgramWhereTheScriptRunsDry) {
    Play play = Play::InCabin();
    play.InPanel({"mj-perolax"});
    play.Use(Item::CabinTerminal, Item::Self);
    EXPECT_TRUE(play.Ended());
    EXPECT_TRUE(play.Desktop().RanDry());
    EXPECT_TRUE(play.Windows().Form2.Window.Visible);
    EXPECT_EQ(play.Form1().Text2.Text(), "Použij terminál na sebe");  // the command never came back
    EXPECT_THAT(play.Desktop().ClickLabel(play.Form1().Window, play.Form1().Label1), Optional(std::string("the program has ended")));
}

TEST(ModalPanel, EndsTheProgramAtOnceWhenTheMainWindowIsClosedBehindIt) {
    Play play = Play::InCabin();
    play.Desktop().NextEvent = [&] {
        EXPECT_EQ(play.Desktop().Close(play.Form1().Window), std::nullopt);
        return true;
    };
    play.Use(Item::CabinTerminal, Item::Self);
    EXPECT_TRUE(play.Ended());
    EXPECT_FALSE(play.Desktop().RanDry());
    for (const ui::Form* form : play.Windows().All) EXPECT_FALSE(form->Visible) << form->Layout.Name;
    EXPECT_EQ(play.State().CommandObject, NumberOf(Item::CabinTerminal));
}

}  // namespace
