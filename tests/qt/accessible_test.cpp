// What a screen reader finds.
#include <gmock/gmock.h>

#include <QAccessible>

#include "tests/qt/screen.h"
#include "ui/qt/look.h"

using namespace ui;

namespace {

QAccessibleInterface& Accessible(const Screen& screen, const Form& form, const Control& control) {
    return *QAccessible::queryAccessibleInterface(screen.Widget(form).WidgetOf(control));
}

bool LeadsTo(QAccessibleInterface& start, QAccessibleInterface& wanted) {
    if (&start == &wanted) return true;
    for (int index = 0; index < start.childCount(); ++index) {
        if (LeadsTo(*start.child(index), wanted)) return true;
    }
    return false;
}

// Fourteen saved games, of which ten are in sight.
struct Panel : Screen {
    Panel() {
        for (int entry = 0; entry < 14; ++entry) list.Append(std::to_string(entry));
        Show(windows.Form4.Window);
    }
    ListBox& list = windows.Form4.List1;
    qt::EntryList& widget = Widget<qt::EntryList>(windows.Form4.Window, &list);
    QAccessibleInterface& entries = Accessible(*this, windows.Form4.Window, &list);
};

void Press(QAccessibleInterface& interface) {
    ASSERT_NE(interface.actionInterface(), nullptr);
    interface.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

}  // namespace

TEST(QtAccessible, LeadsToEveryControlAndNamesItInCzech) {
    QAccessible::setActive(true);  // as by a screen reader that was there before the game
    Screen screen;
    for (Form* form : screen.windows.All) {
        screen.Show(*form);
        auto& window = *QAccessible::queryAccessibleInterface(&screen.Widget(*form));
        for (const Control& control : form->Controls) {
            auto& thing = Accessible(screen, *form, control);
            const QString name = thing.text(QAccessible::Name);
            SCOPED_TRACE(name.toStdString());
            EXPECT_FALSE(LayoutOf(control).Spoken.empty());
            EXPECT_TRUE(name.startsWith(qt::ToQt(LayoutOf(control).Spoken)));
            EXPECT_TRUE(LeadsTo(window, thing));
            auto* const* label = std::get_if<Label*>(&control);
            if (label == nullptr || !(*label)->Click) continue;
            ASSERT_NE(thing.actionInterface(), nullptr);
            EXPECT_TRUE(thing.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
        }
    }
    QAccessible::setActive(false);
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
    button.actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
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
}

TEST(QtAccessible, FindsEntriesWhereTheyStand) {
    Panel screen;
    EXPECT_EQ(screen.entries.childCount(), 14);
    EXPECT_EQ(screen.entries.child(-1), nullptr);
    EXPECT_EQ(screen.entries.child(14), nullptr);
    EXPECT_TRUE(screen.entries.state().focusable);
    for (const int index : {0, 9}) {
        QAccessibleInterface* const entry = screen.entries.child(index);
        const QPoint corner = screen.widget.viewport()->mapToGlobal(QPoint(0, 16 * index));
        EXPECT_EQ(entry->rect(), QRect(corner, QSize(screen.widget.viewport()->width(), 16)));
        EXPECT_EQ(screen.entries.childAt(corner.x() + 3, corner.y() + 8), entry);
        EXPECT_EQ(screen.entries.indexOfChild(entry), index);
        EXPECT_EQ(entry->parent(), &screen.entries);
        EXPECT_EQ(entry->role(), QAccessible::ListItem);
        EXPECT_EQ(entry->text(QAccessible::Name), QString::number(index));
        EXPECT_EQ(entry->text(QAccessible::Description), QString());
    }
    EXPECT_TRUE(screen.entries.child(10)->rect().isEmpty());
    EXPECT_EQ(screen.entries.childAt(-1, -1), nullptr);
    EXPECT_EQ(screen.entries.indexOfChild(&screen.entries), -1);
}

TEST(QtAccessible, TellsWhichEntryIsSelectedAndInSight) {
    Panel screen;
    screen.Do([&] { screen.list.Select(3); });
    const auto state = [&](int index) { return screen.entries.child(index)->state(); };
    EXPECT_TRUE(state(2).selectable && state(2).focusable && !state(2).invalid);
    EXPECT_TRUE(state(3).selected && !state(2).selected);
    EXPECT_TRUE(state(3).focused && !state(2).focused);
    EXPECT_TRUE(state(13).offscreen && !state(3).offscreen);
    EXPECT_FALSE(state(3).disabled || state(3).invisible);
    screen.Do([&] { GiveFocus(screen.windows, &screen.windows.Form4.Text1); });
    EXPECT_TRUE(state(3).selected && !state(3).focused);
    screen.Do([&] { Hide(screen.windows.Form4.Window); });
    EXPECT_TRUE(state(3).invisible);
}

TEST(QtAccessible, PressesOnlyWhatCouldBeClicked) {
    Panel screen;
    int clicks = 0;
    screen.list.Click = [&] { ++clicks; };
    QAccessibleInterface& entry = *screen.entries.child(0);
    EXPECT_EQ(entry.interface_cast(QAccessible::TextInterface), nullptr);
    EXPECT_EQ(entry.actionInterface()->actionNames(), QStringList(QAccessibleActionInterface::pressAction()));
    entry.actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    screen.widget.setEnabled(false);
    EXPECT_TRUE(entry.state().disabled);
    Press(entry);
    screen.widget.setEnabled(true);
    EXPECT_EQ(clicks, 0);
    Press(entry);
    EXPECT_EQ(clicks, 1);
    screen.Do([&] { screen.list.Clear(); });
    EXPECT_FALSE(entry.isValid());
    EXPECT_TRUE(entry.state().invalid && !entry.state().selectable);
    EXPECT_TRUE(entry.rect().isEmpty() && entry.text(QAccessible::Name).isEmpty());
    Press(entry);
    EXPECT_EQ(clicks, 1);
}

TEST(QtAccessible, CountsTheEntryThatTheKeyboardStandsOnAsFocused) {
    Screen screen;
    screen.Show(screen.windows.Form1.Window);
    auto& verbs = screen.Widget<qt::EntryList>(screen.windows.Form1.Window, &screen.windows.Form1.List2[0]);
    verbs.setFocus();
    QTest::keyClick(&verbs, Qt::Key_Down);
    const auto state = Accessible(screen, screen.windows.Form1.Window, &screen.windows.Form1.List2[0]).child(1)->state();
    EXPECT_TRUE(state.focused && !state.selected);
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
