// The output box: its lines as displayed, its scrolling, and its text under the mouse.
#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTextBlock>

#include "tests/qt/screen.h"

using namespace ui;

namespace {

struct Output : Screen {
    Output() { box.SetText(""); }
    void Reveal() {
        Do([this] { box.SetVisible(true); });
    }
    void Say(std::string_view text) {
        Do([&] {
            box.AppendText(text);
            box.MoveCaretToEnd();
        });
    }
    TextBox& box = windows.Form1.Text1;
    qt::OutputView& view = Widget<qt::OutputView>(windows.Form1.Window, &windows.Form1.Text1);
};

constexpr std::string_view Long =
    "Chodba je dlouhá a v celé své délce osvětlená jen třemi lampami, z nichž jedna bliká tak vytrvale, že si na ni posádka dávno zvykla.";

}  // namespace

TEST(QtOutput, CountsDisplayedLinesAlsoWhileHidden) {
    Output screen;
    EXPECT_EQ(screen.desktop.CountLines(screen.box), 1U);
    screen.box.AppendText("první\r\n\r\n");
    EXPECT_EQ(screen.desktop.CountLines(screen.box), 3U);
    screen.box.AppendText(Long);
    EXPECT_EQ(screen.desktop.CountLines(screen.box), 4U);
    screen.box.AppendText(Long);
    const auto hidden = screen.desktop.CountLines(screen.box);
    EXPECT_GT(hidden, 4U);
    screen.Reveal();
    EXPECT_EQ(screen.desktop.CountLines(screen.box), hidden);
    EXPECT_EQ(static_cast<std::size_t>(screen.view.document()->lineCount()), hidden);
    for (int reply = 0; reply < 500; ++reply) screen.box.AppendText("\r\n\r\nodpověď");
    EXPECT_EQ(screen.desktop.CountLines(screen.box), hidden + 1000);
    screen.box.SetText("znovu\r\n");
    EXPECT_EQ(screen.desktop.CountLines(screen.box), 2U);
}

TEST(QtOutput, ShowsWhatWasWrittenBeforeItAppeared) {
    Output screen;
    screen.Say("titul");
    EXPECT_FALSE(screen.view.isVisible());
    screen.Reveal();
    screen.Say("\r\n\r\núvod");
    EXPECT_TRUE(screen.view.isVisible());
    EXPECT_EQ(screen.view.toPlainText(), QString("titul\n\núvod"));
    EXPECT_TRUE(screen.view.verticalScrollBar()->isVisible());
}

TEST(QtOutput, ScrollsToItsEndWhenItGrows) {
    Output screen;
    for (int reply = 0; reply < 60; ++reply) screen.Say("\r\n\r\nodpověď");
    screen.Reveal();
    QScrollBar& bar = *screen.view.verticalScrollBar();
    EXPECT_GT(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), bar.maximum());
    bar.setValue(0);
    screen.Say("\r\n\r\nposlední");
    EXPECT_EQ(bar.value(), bar.maximum());
    const int last = screen.view.cursorRect(QTextCursor(screen.view.document()->lastBlock())).bottom();
    EXPECT_LE(last, screen.view.viewport()->height());
    screen.Do([&] { screen.box.SetText("nový pohled"); });
    EXPECT_EQ(bar.maximum(), 0);
}

TEST(QtOutput, LetsItsTextBeSelectedAndCopiedWhileTheCommandLineHasTheFocus) {
    Output screen;
    screen.Reveal();
    screen.Say("Vidíš terminál.");
    auto& line = *screen.Widget(screen.windows.Form1.Window).WidgetOf(&screen.windows.Form1.Text2);
    QGuiApplication::clipboard()->clear();
    QTest::mouseDClick(screen.view.viewport(), Qt::LeftButton, {}, {10, 7});
    EXPECT_TRUE(line.hasFocus());
    QTest::keyClick(&line, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString("Vidíš"));
}
