// Panels that block, the end of the program from wherever it happens, and errors that the player is told.
#include <gmock/gmock.h>

#include <QAccessible>

#include "tests/qt/screen.h"

using namespace ui;

namespace {

struct Opened : Screen {
    Opened() {
        windows.Form1.Label1.Click = [this] {
            desktop.ShowModal(windows.Form3.Window);
            cameBack = true;
        };
    }
    void OpenPanel() { Widget<qt::LabelArea>(windows.Form1.Window, &windows.Form1.Label1).Click(); }

    bool cameBack = false;
};

}  // namespace

TEST(QtModal, AloneTakesInputUntilItHides) {
    Opened screen;
    auto& main = screen.Widget(screen.windows.Form1.Window);
    Later([&] {
        EXPECT_TRUE(screen.Widget(screen.windows.Form3.Window).isVisible());
        EXPECT_FALSE(screen.cameBack);
        screen.windows.Form1.List2[0].Click = [] { FAIL() << "the main window takes no input"; };
        auto& verbs = screen.Widget<qt::EntryList>(screen.windows.Form1.Window, &screen.windows.Form1.List2[0]);
        QTest::mouseClick(verbs.viewport(), Qt::LeftButton, {}, {9, 20});
        QTest::keyClick(&main, Qt::Key_Escape);
        main.activateWindow();
        QCoreApplication::processEvents();
        EXPECT_TRUE(screen.Widget(screen.windows.Form3.Window).isActiveWindow());
        screen.Do([&] { Hide(screen.windows.Form3.Window); });
    });
    screen.OpenPanel();
    EXPECT_TRUE(screen.cameBack);
    EXPECT_FALSE(screen.Widget(screen.windows.Form3.Window).isVisible());
    EXPECT_TRUE(main.isEnabled());
    EXPECT_EQ(screen.windows.Active, &screen.windows.Form1.Window);
}

TEST(QtModal, HasNoWayOutButTheGames) {
    Screen screen;
    for (Form* form :
         {&screen.windows.Form2.Window, &screen.windows.Form3.Window, &screen.windows.Form4.Window, &screen.windows.Form5.Window}) {
        screen.Show(*form);
        auto& widget = screen.Widget(*form);
        widget.close();
        QTest::keyClick(&widget, Qt::Key_Escape);
        if (widget.focusWidget() != nullptr) QTest::keyClick(widget.focusWidget(), Qt::Key_Escape);
        EXPECT_TRUE(widget.isVisible()) << form->Layout.Name;
    }
}

TEST(QtEnd, LeavesThePanelAndEveryHandlerAtOnce) {
    Opened screen;
    Later([&] { screen.Widget(screen.windows.Form1.Window).close(); });
    screen.OpenPanel();
    EXPECT_TRUE(screen.desktop.Ended());
    EXPECT_FALSE(screen.cameBack);
    screen.Do([] { FAIL() << "no event comes after the end"; });
    screen.desktop.Run();  // returns at once
}

TEST(QtEnd, LeavesTheRunningLoop) {
    Screen screen;
    screen.Show(screen.windows.Form1.Window);
    screen.windows.Form1.Text2.KeyDown = [](int) { EndProcess(); };
    Later([&] { QTest::keyClick(screen.Widget(screen.windows.Form1.Window).focusWidget(), Qt::Key_Escape); });
    screen.desktop.Run();
    EXPECT_TRUE(screen.desktop.Ended());
}

TEST(QtErrors, AreToldInAMessageBoxAndTheGameGoesOn) {
    Screen screen;
    screen.Show(screen.windows.Form1.Window);
    bool told = false;
    Later([&] {
        auto* box = OpenMessageBox();
        ASSERT_NE(box, nullptr);
        screen.windows.Form1.List2[0].Click = [] { FAIL() << "the message box keeps events out"; };
        auto& verbs = screen.Widget<qt::EntryList>(screen.windows.Form1.Window, &screen.windows.Form1.List2[0]);
        QAccessible::queryAccessibleInterface(&verbs)->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        screen.Do([] { FAIL() << "the message box keeps events out"; });
        EXPECT_TRUE(box->isActiveWindow() && box->isEnabled());
        told = box->windowTitle() == "Chyba" && box->text() == "Disk je plný.";
        EXPECT_EQ(screen.windows.Form1.Text2.Text(), "hotovo");
        box->accept();
    });
    screen.Do([&] {
        screen.windows.Form1.Text2.SetText("hotovo");
        throw GameError("Disk je plný.");
    });
    EXPECT_TRUE(told);
    screen.Do([&] { screen.windows.Form1.Text2.SetText("dál"); });
    EXPECT_EQ(screen.Widget<qt::InputLine>(screen.windows.Form1.Window, &screen.windows.Form1.Text2).text(), QString("dál"));
}

TEST(QtErrors, LetTheCloseBoxEndTheGameBehindThem) {
    Opened screen;
    Later([&] {
        Later([&] {
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr);  // a click on the close box would not come through
            screen.Widget(screen.windows.Form1.Window).close();
        });
        screen.Do([] { throw std::bad_alloc(); });
    });
    screen.OpenPanel();
    EXPECT_TRUE(screen.desktop.Ended());
    EXPECT_EQ(OpenMessageBox(), nullptr);
    EXPECT_FALSE(screen.cameBack);
}

TEST(QtPointer, IsAnHourglassWhileTheGameIsBusy) {
    Screen screen;
    screen.Do([&] { screen.windows.BusyPointer = true; });
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    screen.Do([&] { screen.windows.BusyPointer = false; });
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}
