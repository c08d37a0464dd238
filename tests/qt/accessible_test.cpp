// What a screen reader finds.
#include <gmock/gmock.h>

#include <QAccessible>

#include "tests/qt/screen.h"

using namespace ui;

namespace {

QAccessibleInterface& Accessible(const Screen& screen, const Form& form, const Control& control) {
    return *QAccessible::queryAccessibleInterface(screen.Widget(form).WidgetOf(control));
}

void Press(QAccessibleInterface& interface) {
    ASSERT_NE(interface.actionInterface(), nullptr);
    interface.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace

TEST(QtAccessible, NamesEveryControlInCzech) {
    Screen screen;
    for (Form* form : screen.windows.All) {
        screen.Show(*form);
        for (const Control& control : form->Controls) {
            const QString name = Accessible(screen, *form, control).text(QAccessible::Name);
            EXPECT_TRUE(name.startsWith(QString::fromStdString(std::string(LayoutOf(control).Spoken))));
            EXPECT_FALSE(LayoutOf(control).Spoken.empty());
        }
    }
}

TEST(QtAccessible, ReadsACaptionAndItsLight) {
    Screen screen;
    screen.Show(screen.windows.Form3.Window);
    screen.Do([&] {
        screen.windows.Form3.Label1.SetCaption("--- ERROR ---");
        screen.windows.Form3.Label2.SetTextColour(Teal);
    });
    EXPECT_EQ(Accessible(screen, screen.windows.Form3.Window, &screen.windows.Form3.Label1).text(QAccessible::Name),
              QString("Displej číselníku: --- ERROR ---"));
    EXPECT_EQ(Accessible(screen, screen.windows.Form3.Window, &screen.windows.Form3.Label2).text(QAccessible::Description),
              QString("zhaslo"));
}

TEST(QtAccessible, PressesButtonsAndEntries) {
    Screen screen;
    int clicks = 0;
    screen.windows.Form1.Label1.Click = [&] { ++clicks; };
    screen.windows.Form1.List2[0].Click = [&] { clicks += 10; };
    screen.Show(screen.windows.Form1.Window);
    auto& button = Accessible(screen, screen.windows.Form1.Window, &screen.windows.Form1.Label1);
    EXPECT_EQ(button.role(), QAccessible::Button);
    Press(button);
    EXPECT_EQ(clicks, 1);
    auto& verbs = Accessible(screen, screen.windows.Form1.Window, &screen.windows.Form1.List2[0]);
    ASSERT_EQ(verbs.childCount(), 13);
    EXPECT_EQ(verbs.child(12)->text(QAccessible::Name), QString("Exit"));
    EXPECT_TRUE(verbs.child(12)->state().offscreen);
    Press(*verbs.child(12));
    EXPECT_EQ(clicks, 11);
    EXPECT_EQ(screen.windows.Form1.List2[0].Selected(), 12);
    EXPECT_TRUE(verbs.child(12)->state().selected);
    EXPECT_FALSE(verbs.child(12)->state().offscreen);
    EXPECT_EQ(verbs.indexOfChild(verbs.child(5)), 5);
}

TEST(QtAccessible, LetsTheLastReplyBeRead) {
    Screen screen;
    screen.Show(screen.windows.Form1.Window);
    screen.Do([&] {
        screen.windows.Form1.Text1.SetVisible(true);
        screen.windows.Form1.Text1.SetText("Dveře jsou zamčené!");
    });
    auto& output = Accessible(screen, screen.windows.Form1.Window, &screen.windows.Form1.Text1);
    EXPECT_TRUE(output.state().readOnly);
    ASSERT_NE(output.textInterface(), nullptr);
    EXPECT_EQ(output.textInterface()->text(0, output.textInterface()->characterCount()), QString("Dveře jsou zamčené!"));
}
