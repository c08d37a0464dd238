#include <gmock/gmock.h>

#include "ui/input.h"

namespace {

using testing::ElementsAre;

// The keypad's entry takes what is typed; the terminal's output and the command line are read-only.
struct TypedText : testing::Test {
    void Type(std::u32string_view keys) {
        for (const char32_t key : keys) ui::PressKey(windows, box, key);
    }

    ui::Windows windows;
    ui::TextBox& box = windows.Form3.Text1;
};

TEST_F(TypedText, GoesInAtTheCaret) {
    Type(U"šek");
    box.EditText(box.Text(), std::string_view("š").size());
    Type(U"ál");
    EXPECT_EQ(box.Text(), "šálek");
    Type(U"\b\b\b\b");
    EXPECT_EQ(box.Text(), "ek");
    EXPECT_EQ(box.Caret(), 0);
}

TEST_F(TypedText, ShowsForeignCharactersAsQuestionMarks) {
    Type(U"a☀😀č");
    EXPECT_EQ(box.Text(), "a??č");
    box.EditText("ñandu ž", std::string_view("ñan").size());
    EXPECT_EQ(box.Text(), "?andu ž");
    EXPECT_EQ(box.Caret(), std::string_view("?an").size());
}

TEST_F(TypedText, LeavesOutControlCharacters) {
    Type(U"1\t\x1B\n2");
    EXPECT_EQ(box.Text(), "12");
}

TEST_F(TypedText, ReachesNoReadOnlyBoxButItsKeysAreHeard) {
    std::vector<int> heard;
    ui::TextBox& line = windows.Form1.Text2;
    line.SetText("Jdi");
    line.KeyDown = [&](int keyCode) { heard.push_back(keyCode); };
    for (const char32_t key : {U'x', U'\b'}) ui::PressKey(windows, line, key);
    EXPECT_EQ(line.Text(), "Jdi");
    EXPECT_THAT(heard, ElementsAre('x', 8));
}

TEST_F(TypedText, IsAnnouncedBeforeItChangesTheBox) {
    std::vector<std::string> events;
    box.KeyDown = [&](int) { events.push_back("down:" + box.Text()); };
    box.KeyPress = [&](char32_t key) {
        events.push_back("press:" + box.Text());
        return key == U'x';
    };
    box.Change = [&] { events.push_back("change:" + box.Text()); };
    Type(U"ax");
    EXPECT_THAT(events, ElementsAre("down:", "press:", "change:a", "down:a", "press:a"));
}

TEST(TextBox, TellsOfAChangeOnlyWhenTheTextDiffers) {
    ui::Windows windows;
    ui::TextBox& box = windows.Form1.Text2;
    int changes = 0;
    box.Change = [&] { ++changes; };
    box.SetText("");
    box.AppendText("");
    EXPECT_EQ(changes, 0);
    box.SetText("Jdi");
    box.SetText("Jdi");
    box.AppendText(" na sever");
    box.MoveCaretToEnd();
    EXPECT_EQ(changes, 2);
}

TEST(TextBox, CountsReplacementsApartFromAppending) {
    ui::Windows windows;
    ui::TextBox& box = windows.Form1.Text1;
    box.SetText("a\r\nb");
    const auto replaced = box.Replacements();
    const auto changed = box.Changes();
    box.AppendText("\r\nc\r\n");
    EXPECT_EQ(box.Replacements(), replaced);
    EXPECT_GT(box.Changes(), changed);
    EXPECT_EQ(box.LineBreaks(), 3);
    box.SetText("d");
    EXPECT_GT(box.Replacements(), replaced);
    EXPECT_EQ(box.LineBreaks(), 0);
}

TEST(Controls, CountEveryChangeThatADesktopMustShow) {
    ui::Windows windows;
    const auto expectCounted = [](const char* what, const auto& control, const auto& change) {
        const auto before = control.Changes();
        change();
        EXPECT_GT(control.Changes(), before) << what << " would stand on the screen as it was";
    };
    ui::TextBox& text = windows.Form1.Text1;
    expectCounted("a new text", text, [&] { text.SetText("a"); });
    expectCounted("an appended text", text, [&] { text.AppendText("b"); });
    expectCounted("the caret", text, [&] { text.MoveCaretToEnd(); });
    expectCounted("a hidden box", text, [&] { text.SetVisible(true); });
    expectCounted("the caret's shape", text, [&] { text.SetCaretShape(ui::InputCaret); });
    ui::ListBox& list = windows.Form1.List2[0];
    expectCounted("the selection", list, [&] { list.Select(0); });
    expectCounted("an emptied list", list, [&] { list.Clear(); });
    expectCounted("a new entry", list, [&] { list.Append("Jdi"); });
    ui::Label& label = windows.Form1.Label3;
    expectCounted("a caption", label, [&] { label.SetCaption("a"); });
    expectCounted("a colour", label, [&] { label.SetTextColour(ui::Teal); });
}

TEST(ListBox, ForgetsItsSelectionWhenItIsCleared) {
    ui::Windows windows;
    ui::ListBox& verbs = windows.Form1.List2[0];
    for (const char* name : {"Jdi", "Prozkoumej", "Použij", "Vezmi"}) verbs.Append(name);
    EXPECT_EQ(verbs.SelectedEntry(), "");
    verbs.Select(3);
    EXPECT_EQ(verbs.SelectedEntry(), "Vezmi");
    verbs.Clear();
    verbs.Append("Jdi");
    EXPECT_EQ(verbs.Selected(), -1);
    EXPECT_EQ(verbs.Entry(1), "");
}

TEST(Windows, HaveEveryControlOfTheirLayoutInItsOrder) {
    ui::Windows windows;
    for (const ui::Form* form : windows.All) {
        ASSERT_EQ(form->Controls.size(), form->Layout.Controls.size()) << form->Layout.Name;
        for (std::size_t place = 0; place < form->Controls.size(); ++place) {
            EXPECT_EQ(&ui::LayoutOf(form->Controls[place]), &form->Layout.Controls[place]) << form->Layout.Name << ' ' << place;
        }
    }
}

TEST(ListBox, TakesTheFocusThenTheSelectionThenTheClick) {
    ui::Windows windows;
    ui::ListBox& list = windows.Form1.List1;
    std::vector<std::string> events;
    list.GotFocus = [&] { events.push_back("focus " + std::to_string(list.Selected())); };
    list.Click = [&] { events.push_back("click " + std::to_string(list.Selected())); };
    ui::ClickEntry(windows, list, 0);
    ui::ClickEntry(windows, list, 0);
    EXPECT_THAT(events, ElementsAre("focus -1", "click 0", "click 0"));
}

}  // namespace
