#include "saves/system_panel.h"

#include <gmock/gmock.h>

#include "tests/saves/saved_games.h"
#include "ui/input.h"

namespace {

using testing::ElementsAre;
using testing::SizeIs;

constexpr std::int16_t Load = 9, Save = 10;

TEST(SystemPanel, IsOpenedByTheTwoVerbs) {
    Play play = Play::InCabin({Item::CabinKey});
    play.InPanel({"Hra 1"});
    play.Choose(Save);
    play.Proceed();
    play.Put(Item::CabinKey);
    play.InPanel({"Hra 1"});
    play.Choose(Load);
    play.Proceed();
    EXPECT_TRUE(play.Carries(Item::CabinKey));
    EXPECT_EQ(play.Output(), play.View());
}

TEST(SystemPanel, SavesUnderATypedNameAndLoadsByAClick) {
    SavedGames play;
    play.game.state.DoorCode = "4711305";
    play.Open(Save, {play.Line("Hra 1")});
    EXPECT_FALSE(play.panel.Window.Visible);
    EXPECT_EQ(play.panel.Text1.Text(), "");
    EXPECT_EQ(play.panel.Label1.TextColour(), ui::Teal);

    play.game.state.DoorCode = "";
    play.Open(Load, {[&] {
                         play.desktop.ClickEntry(play.panel.Window, play.panel.List1, 0);
                         EXPECT_EQ(play.panel.Text1.Text(), "Hra 1");
                         EXPECT_EQ(play.panel.Text1.Caret(), 5u);
                         EXPECT_EQ(play.panel.Label1.TextColour(), ui::PaleCyan);
                     },
                     [&] { play.desktop.ClickLabel(play.panel.Window, play.panel.Label2); }});
    EXPECT_FALSE(play.panel.Window.Visible);
    EXPECT_EQ(play.game.state.DoorCode, "4711305");
    EXPECT_TRUE(play.desktop.Running());
}

TEST(SystemPanel, ClosesOnExitInAnyCase) {
    SavedGames play;
    for (const char* word : {"exit", "EXIT", "eXiT"}) {
        play.Open(Load, {play.Line(word)});
        EXPECT_FALSE(play.panel.Window.Visible) << word;
        EXPECT_EQ(play.panel.Text1.Text(), word);  // the next opening empties it
    }
    play.Open(Save, {play.Line("exit ")});
    EXPECT_THAT(play.Listed(), ElementsAre("exit "));
}

TEST(SystemPanel, RefusesForbiddenCharactersWithoutAWord) {
    for (const std::int16_t verb : {Load, Save}) {
        for (const char forbidden : std::string(".,:;\"'&#$?*")) {
            SavedGames play;
            const std::string name = std::string("a") + forbidden;
            play.Open(verb, {play.Line(name)});
            EXPECT_TRUE(play.panel.Window.Visible) << name;
            EXPECT_EQ(play.panel.Text1.Text(), name);
            EXPECT_EQ(play.panel.Label1.TextColour(), ui::PaleCyan);
            EXPECT_THAT(play.desktop.TakeMessageBoxes(), SizeIs(0));
            EXPECT_THAT(play.Listed(), SizeIs(0));
        }
    }
}

TEST(SystemPanel, RefusesToLoadANameThatIsNotListedExactly) {
    SavedGames play;
    play.Open(Save, {play.Line("Hra")});
    for (const char* name : {"hra", "Hra ", ""}) {
        SavedGames other;
        other.Put("Hra.TVX", play.FileBytes("Hra.TVX"));
        other.Open(Load, {other.Line(name)});
        EXPECT_TRUE(other.panel.Window.Visible) << name;
        EXPECT_THAT(other.desktop.TakeMessageBoxes(), SizeIs(0));
    }
}

TEST(SystemPanel, SavesUnderTheEmptyName) {
    SavedGames play;
    play.Open(Save, {play.Line("")});
    EXPECT_TRUE(std::filesystem::exists(play.Folder() / ".TVX"));
    play.Open(Load, {play.Line("")});
    EXPECT_FALSE(play.panel.Window.Visible);
    EXPECT_TRUE(play.desktop.Running());
}

TEST(SystemPanel, StaysOpenForAnotherTryWhenAFileWillNotDo) {
    SavedGames play;
    play.Put("vadna.TVX", {1, 0, 0});
    const auto expectOpen = [&](std::size_t boxes, const std::string& text) {
        return [&play, boxes, text] {
            EXPECT_TRUE(play.panel.Window.Visible);
            EXPECT_EQ(play.panel.Text1.Text(), text);
            EXPECT_THAT(play.desktop.TakeMessageBoxes(), SizeIs(boxes));
            play.panel.Text1.SetText("");
        };
    };
    play.Open(Save, {play.Line("a/b"), expectOpen(1, "a/b"), play.Line("jina")});
    EXPECT_FALSE(play.panel.Window.Visible);
    play.Open(Load, {play.Line("vadna"), expectOpen(1, "vadna"), play.Line("jina")});
    EXPECT_FALSE(play.panel.Window.Visible);
    EXPECT_TRUE(play.desktop.Running());
}

TEST(SystemPanel, OpensOnAFolderThatCannotBeRead) {
    SavedGames play;
    std::filesystem::remove(play.Folder());
    std::ofstream(play.Folder()) << "cizí soubor";
    play.Open(Save, {[&] { EXPECT_THAT(play.desktop.TakeMessageBoxes(), SizeIs(1)); }, [&] { std::filesystem::remove(play.Folder()); },
                     play.Line("hra")});
    EXPECT_FALSE(play.panel.Window.Visible);
    EXPECT_THAT(play.Listed(), ElementsAre("hra"));
}

TEST(SystemPanel, TakesWhatIsTypedWhileTheListHasTheFocus) {
    SavedGames play;
    const auto press = [&](char32_t key) { return [&play, key] { play.desktop.RunEvent([&] { ui::PressKey(play.panel.List1, key); }); }; };
    play.Open(Save, {press(U'ž'), press(U'x'), press(ui::key::Backspace),
                     [&] {
                         EXPECT_EQ(play.panel.Text1.Text(), "ž");
                         EXPECT_EQ(play.panel.Window.Focused, ui::Control(&play.panel.Text1));
                         EXPECT_TRUE(play.panel.Text1.Shape());
                     },
                     press(ui::key::Enter)});
    EXPECT_THAT(play.Listed(), ElementsAre("ž"));
}

}  // namespace
