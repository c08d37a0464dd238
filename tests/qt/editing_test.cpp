// What keys, the mouse and the clipboard do to the boxes and lists.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

#include "tests/qt/screen.h"

using namespace ui;
using ::testing::ElementsAre;

namespace {

struct Terminal : Screen {
    Terminal() {
        Show(windows.Form2.Window);
        Do([this] { GiveFocus(windows, &box); });
    }
    TextBox& box = windows.Form2.Text2;
    qt::InputLine& line = Widget<qt::InputLine>(windows.Form2.Window, &windows.Form2.Text2);
};

void Drop(QWidget& target, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &enter);
    QDropEvent drop({3, 3}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &drop);
}

}  // namespace

TEST(QtInputLine, AnnouncesEachKeyBeforeItsEditAndKeepsSwallowedOnesOut) {
    Terminal screen;
    std::vector<std::string> before;
    screen.box.KeyPress = [&](char32_t key) {
        before.push_back(screen.box.Text());
        return key == U'x' || key == key::Enter;
    };
    QTest::keyClicks(&screen.line, "axb");
    QTest::keyClick(&screen.line, Qt::Key_Return);
    QTest::keyClick(&screen.line, Qt::Key_Backspace);
    EXPECT_THAT(before, ElementsAre("", "a", "a", "ab", "ab"));
    EXPECT_EQ(screen.box.Text(), "a");
    EXPECT_EQ(screen.line.text(), "a");
}

TEST(QtInputLine, TakesComposedLettersLikeTypedOnes) {
    Terminal screen;
    std::u32string heard;
    screen.box.KeyPress = [&](char32_t key) {
        heard += key;
        return key == U'x';
    };
    QInputMethodEvent composed;
    composed.setCommitString("řxn\u030C");
    QCoreApplication::sendEvent(&screen.line, &composed);
    EXPECT_EQ(heard, U"řxň");
    EXPECT_EQ(screen.box.Text(), "řň");
    EXPECT_EQ(screen.box.Caret(), screen.box.Text().size());
}

TEST(QtInputLine, HearsNoShortcutsButWhatAltGrTypes) {
    Terminal screen;
    std::u32string heard;
    screen.box.KeyPress = [&](char32_t key) {
        heard += key;
        return false;
    };
    const auto press = [&](int key, Qt::KeyboardModifiers modifiers, const char* text) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, QString(text));
        QCoreApplication::sendEvent(&screen.line, &event);
    };
    press(Qt::Key_BracketLeft, Qt::ControlModifier, "\x1B");
    press(0xDA, Qt::ControlModifier, "\x1B");  // ú on a Czech keyboard
    press(Qt::Key_M, Qt::ControlModifier, "\r");
    press(Qt::Key_H, Qt::ControlModifier, "\b");
    press(Qt::Key_Return, Qt::ControlModifier, "\r");
    press(Qt::Key_Escape, Qt::AltModifier, "\x1B");
    press(Qt::Key_A, Qt::AltModifier, "a");
    press(Qt::Key_A, Qt::MetaModifier, "a");
    press(Qt::Key_Delete, Qt::NoModifier, "\x7F");
    EXPECT_EQ(heard, U"");
    press(Qt::Key_At, Qt::GroupSwitchModifier, "@");
    press(0x158, Qt::ShiftModifier, "Ř");
    EXPECT_EQ(heard, U"@Ř");
    EXPECT_EQ(screen.box.Text(), "@Ř");
    QTest::keyClick(&screen.line, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(screen.line.selectedText(), QString("@Ř"));
}

TEST(QtInputLine, EditsAtTheCaretAndLeavesTheRestToTheClipboard) {
    Terminal screen;
    QTest::keyClicks(&screen.line, "mj-prolax");
    for (int step = 0; step < 5; ++step) QTest::keyClick(&screen.line, Qt::Key_Left);
    QTest::keyClick(&screen.line, Qt::Key_E);
    EXPECT_EQ(screen.box.Text(), "mj-perolax");
    EXPECT_EQ(screen.box.Caret(), 5U);
    QGuiApplication::clipboard()->setText("→z\u030C\r\nb\t");  // a letter and its accent
    QTest::keyClick(&screen.line, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(screen.box.Text(), "mj-pe?žbrolax");
    EXPECT_EQ(screen.line.text(), QString("mj-pe?žbrolax"));
    screen.line.selectAll();
    QTest::keyClick(&screen.line, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(screen.box.Text(), "");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString("mj-pe?žbrolax"));
}

TEST(QtReadOnlyBoxes, TakeNothing) {
    Screen screen;
    screen.Do([&] {
        screen.windows.Form1.Text1.SetText("");
        screen.windows.Form1.Text1.SetVisible(true);
    });
    std::vector<int> keys;
    screen.windows.Form1.Text2.KeyDown = [&](int key) { keys.push_back(key); };
    QGuiApplication::clipboard()->setText("vloženo");
    for (TextBox* box : {&screen.windows.Form1.Text1, &screen.windows.Form1.Text2}) {
        QWidget& widget = *screen.Widget(screen.windows.Form1.Window).WidgetOf(box);
        QTest::keyClicks(&widget, "ab");
        QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_Delete);
        QTest::mouseClick(&widget, Qt::MiddleButton);
        Drop(widget, "přetaženo");
        EXPECT_EQ(box->Text(), "");
    }
    EXPECT_TRUE(screen.Widget<qt::InputLine>(screen.windows.Form1.Window, &screen.windows.Form1.Text2).text().isEmpty());
    QTest::keyClick(screen.Widget(screen.windows.Form1.Window).WidgetOf(&screen.windows.Form1.Text2), Qt::Key_Enter);
    EXPECT_EQ(keys.back(), 13);
}

TEST(QtBoxes, HaveACzechMenu) {
    Terminal screen;
    const auto menu = [](QWidget& widget) {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&widget, &asked);
        QStringList entries;
        for (QAction* action : QApplication::activePopupWidget()->actions()) {
            entries += action->text() + (action->isEnabled() ? "" : " -");
            if (action->text() == "Vyjmout" && action->isEnabled()) action->trigger();
        }
        QApplication::activePopupWidget()->close();
        return entries.join(", ").toStdString();
    };
    EXPECT_EQ(menu(screen.line), "Vyjmout -, Kopírovat -, Vložit, Vybrat vše -");
    QTest::keyClicks(&screen.line, "exit");
    screen.line.selectAll();
    EXPECT_EQ(menu(screen.line), "Vyjmout, Kopírovat, Vložit, Vybrat vše");
    EXPECT_EQ(screen.box.Text(), "");
    EXPECT_EQ(menu(screen.Widget<qt::InputLine>(screen.windows.Form1.Window, &screen.windows.Form1.Text2)), "Kopírovat -, Vybrat vše -");
    auto& output = screen.Widget<qt::OutputView>(screen.windows.Form1.Window, &screen.windows.Form1.Text1);
    EXPECT_EQ(menu(*output.viewport()), "Kopírovat -, Vybrat vše");
}

TEST(QtLists, SelectUnderTheMouseAndUnderTheCursorKeys) {
    Screen screen;
    ListBox& list = screen.windows.Form4.List1;
    for (int entry = 0; entry < 14; ++entry) list.Append(std::to_string(entry));
    std::vector<int> clicks;
    list.Click = [&] { clicks.push_back(list.Selected()); };
    std::u32string typed;
    list.KeyPress = [&](char32_t key) {
        typed += key;
        return false;
    };
    screen.Show(screen.windows.Form4.Window);
    auto& widget = screen.Widget<qt::EntryList>(screen.windows.Form4.Window, &list);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, {10, 9 * 16 + 15});
    EXPECT_TRUE(widget.hasFocus());
    QTest::keyClick(&widget, Qt::Key_Down);
    EXPECT_FALSE(widget.RowRect(10).isEmpty());
    QTest::keyClick(&widget, Qt::Key_Home);
    QTest::keyClick(&widget, Qt::Key_Up);
    QTest::keyClick(&widget, Qt::Key_End);
    QTest::keyClick(&widget, Qt::Key_A);
    QTest::keyClick(&widget, Qt::Key_Return);
    EXPECT_THAT(clicks, ElementsAre(9, 10, 0, 0, 13));
    EXPECT_EQ(typed, U"a\r");
}

TEST(QtLists, TakeTwoQuickClicksForTwo) {
    Screen screen;
    screen.Show(screen.windows.Form1.Window);
    int clicks = 0;
    screen.windows.Form1.List2[0].Click = [&] { ++clicks; };
    auto& verbs = screen.Widget<qt::EntryList>(screen.windows.Form1.Window, &screen.windows.Form1.List2[0]);
    QTest::mouseClick(verbs.viewport(), Qt::LeftButton, {}, {10, 8});
    QMouseEvent second(QEvent::MouseButtonDblClick, {10, 8}, {10, 8}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(verbs.viewport(), &second);
    EXPECT_EQ(clicks, 2);
}

TEST(QtLists, IgnoreAClickBelowTheLastEntry) {
    Screen screen;
    screen.windows.Form1.List1.Click = [] { FAIL(); };
    screen.Show(screen.windows.Form1.Window);
    auto& widget = screen.Widget<qt::EntryList>(screen.windows.Form1.Window, &screen.windows.Form1.List1);
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, {}, {10, 40});
}

TEST(QtFocus, WalksFromControlToControlAndStaysTheProgramsOwn) {
    Screen screen;
    int proceeded = 0;
    screen.windows.Form1.Label1.Click = [&] { ++proceeded; };
    std::vector<int> keys, clicked;
    screen.windows.Form1.Text2.KeyDown = [&](int key) { keys.push_back(key); };
    screen.windows.Form1.List2[0].Click = [&] { clicked.push_back(screen.windows.Form1.List2[0].Selected()); };
    screen.Show(screen.windows.Form1.Window);
    auto& main = screen.Widget(screen.windows.Form1.Window);
    const std::vector<Control> stops = {&screen.windows.Form1.List1,    &screen.windows.Form1.List2[0], &screen.windows.Form1.List2[1],
                                        &screen.windows.Form1.List2[2], &screen.windows.Form1.Label1,   &screen.windows.Form1.Text2};
    for (const Control& stop : stops) {
        QTest::keyClick(main.focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(main.WidgetOf(stop)->hasFocus()) << LayoutOf(stop).Name;
        EXPECT_EQ(screen.windows.Form1.Window.Focused, Control(&screen.windows.Form1.Text2));
        if (!std::holds_alternative<TextBox*>(stop)) QTest::keyClick(main.focusWidget(), Qt::Key_Backspace);
        if (stop != stops[1]) continue;
        QTest::keyClick(main.focusWidget(), Qt::Key_Down);  // moves the mark alone
        QTest::keyClick(main.focusWidget(), Qt::Key_Down);
        QTest::keyClick(main.focusWidget(), Qt::Key_Space);
        QTest::keyClick(main.focusWidget(), Qt::Key_Up);
        QTest::keyClick(main.focusWidget(), Qt::Key_Return);
    }
    EXPECT_THAT(clicked, ElementsAre(2, 1));
    EXPECT_THAT(keys, ElementsAre(8, 8, 8, 8, 8));
    QTest::keyClick(main.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(main.focusWidget(), Qt::Key_Space);
    QTest::keyClick(main.focusWidget(), Qt::Key_Enter);
    EXPECT_EQ(proceeded, 2);
    QTest::mouseClick(dynamic_cast<qt::EntryList*>(main.WidgetOf(stops[1]))->viewport(), Qt::LeftButton, {}, {9, 20});
    EXPECT_EQ(clicked.back(), 1);
    EXPECT_TRUE(main.WidgetOf(stops[5])->hasFocus());
    screen.Show(screen.windows.Form5.Window);
    EXPECT_TRUE(main.isActiveWindow());
}

TEST(QtFocus, LeavesTheKeypadByKeyboardAndComesBackToItsCode) {
    Screen screen;
    const auto& keypad = screen.windows.Form3;
    screen.Show(screen.windows.Form3.Window);
    auto& panel = screen.Widget(keypad.Window);
    QWidget& cancel = *panel.WidgetOf(&screen.windows.Form3.Label3);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(cancel.hasFocus());
    const QImage focused = cancel.grab().toImage();
    QTest::keyClick(&cancel, Qt::Key_7);
    EXPECT_EQ(keypad.Text1.Text(), "7");
    EXPECT_TRUE(panel.WidgetOf(&screen.windows.Form3.Text1)->hasFocus());
    EXPECT_NE(cancel.grab().toImage(), focused);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    QTest::keyClick(&cancel, Qt::Key_Space);
    EXPECT_FALSE(panel.isVisible());
    screen.Show(screen.windows.Form1.Window);
    screen.Show(screen.windows.Form3.Window);
    EXPECT_TRUE(panel.WidgetOf(&screen.windows.Form3.Text1)->hasFocus());
    QTest::keyClick(panel.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(cancel.hasFocus());
    QTest::keyClick(&cancel, Qt::Key_Return);
    EXPECT_FALSE(panel.isVisible());
}

TEST(QtLabels, PassTheirClicksToTheAreaThatLiesOnThem) {
    Screen screen;
    int clicks = 0;
    screen.windows.Form1.Label1.Click = [&] { ++clicks; };
    screen.Show(screen.windows.Form1.Window);
    auto& main = screen.Widget(screen.windows.Form1.Window);
    for (const QPoint place : {QPoint(188, 494), QPoint(161, 481), QPoint(216, 504)}) {
        QWidget* hit = main.childAt(place);
        ASSERT_NE(hit, nullptr);
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&main, place));
    }
    EXPECT_EQ(clicks, 3);
    QWidget* area = main.WidgetOf(&screen.windows.Form1.Label1);
    QTest::mousePress(area, Qt::LeftButton, {}, {5, 5});
    QTest::mouseRelease(area, Qt::LeftButton, {}, {-5, 5});
    QTest::mouseClick(area, Qt::RightButton, {}, {5, 5});
    EXPECT_EQ(clicks, 3);
}
