#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;

constexpr std::string_view Refusal = "Nezdá se, že by to mělo fungovat.";

TEST(Rig, NeedsBothPartsAndThenMakesACode) {
    Play play = Play::In(sector::LabCorridor, {OperatingTerminal, DataCable, Tester});
    GameState& state = play.State();
    EXPECT_THAT(play.Examine(OperatingTerminal).Told(), ElementsAre(168));
    EXPECT_THAT(play.Use(Tester, OperatingTerminal).Told(), ElementsAre(177));
    EXPECT_THAT(play.Examine(OperatingTerminal).Told(), ElementsAre(168, 180));
    EXPECT_EQ(play.Use(OperatingTerminal, Keypad).LastSaid(), Refusal);
    EXPECT_THAT(play.Use(DataCable, OperatingTerminal).Told(), ElementsAre(176));
    EXPECT_THAT(play.Examine(OperatingTerminal).Told(), ElementsAre(168, 178));

    play.Draws({0.67, 0, 0.12, 0.34, 0.5, 0.6, 0.7, 0.999});
    EXPECT_THAT(play.Use(OperatingTerminal, Keypad).Told(), ElementsAre(181, 0, 0));
    EXPECT_EQ(play.LastSaid(), "Nový kód je 0134568");
    EXPECT_EQ(state.CalledAwayDestination, 3);
    state.CalledAwayState = CalledAwayStage::Gone;
    play.Draws({0.2, 0, 0, 0, 0, 0, 0});
    EXPECT_THAT(play.Use(OperatingTerminal, Keypad).Told(), ElementsAre(181, 0));
    EXPECT_EQ(state.DoorCode, "1000000");
    EXPECT_EQ(state.CalledAwayDestination, 3);

    state.ContainerStoryState = ContainerStage::AgentTold;
    state.KeypadDoorUnlocked = True;
    EXPECT_THAT(play.Use(OperatingTerminal, Keypad).Told(), ElementsAre(211));
    EXPECT_EQ(state.DoorCode, "");
    EXPECT_EQ(play.Open(KeypadDoorOutside).LastSaid(), "Dveře jsou zamčené!");
    EXPECT_EQ(play.Use(OperatingTerminal, Keypad).LastSaid(), "Raději ne...");
    state.CableConnected = False;
    EXPECT_THAT(play.Examine(OperatingTerminal).Told(), ElementsAre(168, 180));
    state.CableConnected = True;
    state.TesterConnected = False;
    EXPECT_THAT(play.Examine(OperatingTerminal).Told(), ElementsAre(168, 179));
}

TEST(Ending, LeadsFromTheMatchToTheLastText) {
    Play play = Play::In(sector::CaptainsCabin);
    GameState& state = play.State();
    EXPECT_EQ(state.DnaMatchFound, False);
    play.Place(ManInDarkGlasses, sector::CaptainsCabin);
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(0));  // nothing to say yet
    state.DnaMatchFound = state.CaptainGreeted = True;
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(245));
    EXPECT_THAT(play.Talk(Captain).Told(), ElementsAre(246, sector::CaptainsCabin));
    EXPECT_FALSE(play.Sees(ManInDarkGlasses) || play.Sees(Captain));

    play.MoveTo(sector::Hangar);
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(247));
    EXPECT_THAT(play.Talk(Captain).Told(), ElementsAre(247));
    EXPECT_THAT(play.Take(Cart).Told(), ElementsAre(108));
    EXPECT_THAT(play.Examine(HangarPersonnel).Told(), ElementsAre(105, 248, sector::Hangar));
    EXPECT_THAT(play.Examine(HangarPersonnel).Told(), ElementsAre(105));
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(251));
    EXPECT_THAT(play.Talk(Captain).Told(), ElementsAre(252));
    EXPECT_THAT(play.Examine(DeadVega).Told(), ElementsAre(249, 250, sector::Hangar));
    EXPECT_THAT(play.Examine(DeadVega).Told(), ElementsAre(249));
    EXPECT_THAT(play.Take(Detonator).Use(Detonator, Self).Told(), ElementsAre(261));
    EXPECT_EQ(play.Use(Detonator, Cart).LastSaid(), Refusal);
    EXPECT_THAT(play.Examine(Message).Told(), ElementsAre(254));
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(255, sector::Hangar));
    EXPECT_FALSE(play.Sees(ManInDarkGlasses) || play.Sees(Captain));
    EXPECT_TRUE(play.Lies(Captain, sector::CaptainsCabin));
    EXPECT_THAT(play.Take(Cart).Told(), ElementsAre(108, 256, 0, sector::Hangar));

    play.MoveTo(sector::EngineRoom);
    play.Place(SeismicBomb, sector::EngineRoom);
    EXPECT_THAT(play.Use(Cart, Teleport).Told(), ElementsAre(258));
    EXPECT_THAT(play.Use(Cart, SeismicBomb).Told(), ElementsAre(257, sector::EngineRoom));
    EXPECT_FALSE(play.Sees(SeismicBomb));
    EXPECT_THAT(play.Examine(Cart).Told(), ElementsAre(107, 259));
    EXPECT_THAT(play.Use(Cart, Teleport).Told(), ElementsAre(260));
    EXPECT_FALSE(play.Carries(Cart));
    EXPECT_THAT(play.Use(Detonator, Self).Told(), ElementsAre(262, 263, 264, 265, 266));
    EXPECT_EQ(play.Output().find(play.Text(262)), 0);
    EXPECT_FALSE(play.Ended());
    EXPECT_TRUE(play.Proceed().Ended());
}

}  // namespace
