#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;

TEST(Rig, NeedsBothPartsAndThenMakesACode) {
    Play play = Play::In(sector::LabCorridor, {OperatingTerminal, DataCable, Tester});
    GameState& state = play.State();
    play.Use(Tester, OperatingTerminal);
    EXPECT_EQ(play.Use(OperatingTerminal, Keypad).LastSaid(), "Nezdá se, že by to mělo fungovat.");
    play.Use(DataCable, OperatingTerminal);
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
}

TEST(InnerRoom, EmptiesItsMailboxOnTheFirstVisit) {
    Play play = Play::In(sector::LabCorridor);
    GameState& state = play.State();
    for (const int mail : {0, 3}) {
        state.Sectors[sector::LabCorridor].East = state.Sectors[sector::InnerRoom].West = True;
        state.TerminalMailbox = {2, 2, 2, 2, 3};
        play.Go("na východ");
        EXPECT_THAT(state.TerminalMailbox, ElementsAre(2, 2, 2, 2, mail));
        StandIn(state, sector::LabCorridor);
    }
}

}  // namespace
