#include "saves/save_inspection.h"

#include <gmock/gmock.h>

#include "core/stages.h"
#include "tests/saves/saved_games.h"

namespace {

using Finding = Inspection::Finding;

Bytes SaveUnder(std::string_view name) {
    return EncodeSave(StartState(), name, SomeKeys);
}

TEST(SaveInspection, AcceptsWhatALoadUnderTheNameInsideAccepts) {
    Bytes longer = SaveUnder("Žluťoučký kůň");
    longer.push_back(7);
    for (const Bytes& file : {SaveUnder("Žluťoučký kůň"), longer}) {
        const Inspection inspection = InspectSave(file);
        EXPECT_EQ(inspection.Found, Finding::Sound);
        EXPECT_EQ(inspection.Name, "Žluťoučký kůň");
    }
    EXPECT_EQ(InspectSave(SaveUnder("")).Found, Finding::Sound);
}

TEST(SaveInspection, FindsWhatALoadWouldRefuse) {
    const Bytes save = SaveUnder("a");
    for (std::size_t size = 0; size < save.size(); ++size) {
        EXPECT_EQ(InspectSave(std::span(save).first(size)).Found, Finding::Damaged) << size;
    }
    Bytes elsewhere = save;
    elsewhere[6] = 99;  // in no sector
    EXPECT_EQ(InspectSave(elsewhere).Found, Finding::Damaged);
    EXPECT_EQ(InspectSave(Bytes(MostSaveBytes + 1)).Found, Finding::TooLong);
}

TEST(SaveInspection, FindsNamesThatNobodyCouldLoad) {
    for (const char* name : {"a.b", "Exit", "../a", "a\\b", "dva\nřádky", "100 %?"}) {
        const Inspection inspection = InspectSave(SaveUnder(name));
        EXPECT_EQ(inspection.Found, Finding::NameRefused) << name;
        EXPECT_EQ(inspection.Name, name);
    }
}

TEST(UnsavedSteps, AreThoseThatNoSavedGameHolds) {
    SavedGames play;
    GameState& state = play.game.state;
    EXPECT_FALSE(HasUnsavedSteps(play.game)) << "at the title";
    state.GameStage = GameStage::Running;
    EXPECT_FALSE(HasUnsavedSteps(play.game)) << "nothing was done";
    state.CabinWardrobeOpen = True;
    EXPECT_TRUE(HasUnsavedSteps(play.game));
    play.Put("cizí.TVX", {1, 2, 3});
    EXPECT_TRUE(HasUnsavedSteps(play.game)) << "beside a damaged file";
    play.Save("b");
    EXPECT_FALSE(HasUnsavedSteps(play.game)) << "just saved";
    state.Sectors[2].Items.push_back(6);
    EXPECT_TRUE(HasUnsavedSteps(play.game)) << "a step later";
    play.Load("b");
    EXPECT_FALSE(HasUnsavedSteps(play.game)) << "just loaded";
    state.CabinWardrobeOpen = False;
    state.DoorCode = "1";
    state.GameOver = True;
    EXPECT_FALSE(HasUnsavedSteps(play.game)) << "at the end there is no way on";
}

TEST(SystemPanel, RenewsItsListAndLeavesWhatIsTyped) {
    SavedGames play;
    play.Put("stará.TVX", {});
    play.Open(10, {[&] { play.panel.Text1.EditText("rozepsané", 3); },
                   [&] {
                       play.Put("nová.TVX", {});
                       RenewSystemPanel(play.game);
                       EXPECT_THAT(play.panel.List1.Entries(), testing::UnorderedElementsAre("nová", "stará"));
                       EXPECT_EQ(play.panel.Text1.Text(), "rozepsané");
                       EXPECT_EQ(play.panel.Text1.Caret(), 3);
                   }});
}

}  // namespace
