#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;

TEST(Captain, CatchesHimWithHisDocuments) {
    for (const auto taken : {&GameState::DocumentsTaken, &GameState::Documents2Taken}) {
        Play play = Play::In(sector::Corridor);
        play.State().*taken = True;
        const std::string before = play.View();
        play.Go("na východ");
        EXPECT_EQ(play.Output(), before + "\r\n\r\n" + play.Text(138));
        EXPECT_EQ(play.State().GameOver, True);
    }
}

// All events that wait for a sector come one a step, in the order of the story; the one that waits anywhere comes after them.
TEST(StepEvents, ComeOneByOneInTheCorridorToTheLaboratory) {
    Play play = Play::In(sector::Crossing);
    GameState& state = play.State();
    state.DarkGlassesState = DarkGlassesStage::Gone;
    state.CalledAwayState = CalledAwayStage::Called;
    state.ContainerStoryState = ContainerStage::AgentSent;
    for (const int text : {141, 184, 207}) {
        play.Go("na sever");
        EXPECT_THAT(play.Told(), ElementsAre(sector::LabCorridor, text));
        play.Go("na jih");
        EXPECT_THAT(play.Told(), ElementsAre(sector::Crossing));
    }
    play.Go("na sever");
    EXPECT_THAT(play.Told(), ElementsAre(sector::LabCorridor));
    EXPECT_TRUE(play.Lies(MaintenanceMan, sector::DiningHall));
    EXPECT_EQ(state.CalledAwayState, CalledAwayStage::Gone);
}

TEST(InnerRoom, EmptiesItsMailboxOnTheFirstVisit) {
    Play play = Play::In(sector::LabCorridor);
    GameState& state = play.State();
    for (const int mail : {0, 3}) {
        state.Sectors[sector::LabCorridor].East = state.Sectors[sector::InnerRoom].West = True;
        state.TerminalMailbox = {2, 2, 2, 2, 3};
        play.Go("na východ");
        EXPECT_THAT(state.TerminalMailbox, ElementsAre(2, 2, 2, 2, mail));
        play.MoveTo(sector::LabCorridor);
    }
}

}  // namespace
