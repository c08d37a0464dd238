#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;
using testing::StartsWith;

TEST(Step, LeadsThroughThePassageBothWays) {
    Play play = Play::In(sector::Crossing);
    play.Go("na západ");
    EXPECT_EQ(play.State().CurrentSector, sector::WestEnd);
    EXPECT_THAT(play.Output(), StartsWith(play.Text(sector::WestEnd)));
    play.Go("na východ");
    EXPECT_EQ(play.State().CurrentSector, sector::Crossing);
    play.Go("na východ");
    EXPECT_EQ(play.State().CurrentSector, sector::Corridor);
}

// A door opened from one side is passed, and stands closed behind the player on both.
struct ClosingDoor {
    std::int16_t From;
    Item Side;
    std::string_view Way;
    Item OtherSide;
    std::string_view WayBack;
};

void PrintTo(const ClosingDoor& door, std::ostream* out) {
    *out << "door " << NumberOf(door.Side) << " of sector " << door.From;
}

class DoorsBehindThePlayer : public testing::TestWithParam<ClosingDoor> {};

TEST_P(DoorsBehindThePlayer, FallShut) {
    const ClosingDoor& door = GetParam();
    Play play = Play::In(door.From);
    GameState& state = play.State();
    state.CabinDoorUnlocked = state.KeypadDoorUnlocked = state.OfficeDoorUnlocked = True;
    state.CalledAwayState = CalledAwayStage::Gone;
    const auto closed = play.Exits();
    play.Open(door.Side);
    play.Go(door.Way);
    EXPECT_NE(state.CurrentSector, door.From);
    play.Close(door.OtherSide);
    EXPECT_EQ(play.LastSaid(), "Dveře jsou již zavřené!");
    play.Open(door.OtherSide);
    play.Go(door.WayBack);
    EXPECT_EQ(state.CurrentSector, door.From);
    EXPECT_EQ(play.Exits(), closed);
}

INSTANTIATE_TEST_SUITE_P(Ship, DoorsBehindThePlayer,
                         testing::Values(ClosingDoor{sector::Cabin, CabinDoorInside, "na sever", CabinDoorOutside, "na jih"},
                                         ClosingDoor{sector::LabCorridor, LabDoorOutside, "na západ", LabDoorInside, "na východ"},
                                         ClosingDoor{sector::LabCorridor, KeypadDoorOutside, "na východ", KeypadDoorInside, "na západ"},
                                         ClosingDoor{sector::EastEnd, CaptainDoorOutside, "na sever", CaptainDoorInside, "na jih"},
                                         ClosingDoor{sector::WestEnd, GuestCabinDoorOutside, "na jih", GuestCabinDoorInside, "na sever"},
                                         ClosingDoor{sector::EngineRoom, OfficeDoorOutside, "na jih", OfficeDoorInside, "na sever"}));

TEST(BathroomDoor, StaysAsItWasLeftAndShowsOneSideOnly) {
    Play play = Play::InCabin();
    play.Open(BathroomDoorOutside);
    play.Go("na jih");
    play.Go("na sever");
    EXPECT_THAT(play.Exits(), ElementsAre("na jih"));
    play.Go("na jih");
    play.Close(BathroomDoorInside);
    EXPECT_THAT(play.Exits(), ElementsAre("---"));
    EXPECT_EQ(play.State().Sectors[sector::Cabin].South, True);
}

TEST(MeshDoor, ClosesOnceThePlayerIsBackInTheCorridor) {
    Play play = Play::In(sector::Store);
    play.State().WireDoorUnlocked = True;
    play.Open(WireDoorOutside);
    play.Go("na jih");
    play.Go("na sever");
    EXPECT_THAT(play.Exits(), ElementsAre("na sever", "na jih"));
    play.Go("na sever");
    play.Go("na jih");
    EXPECT_THAT(play.Exits(), ElementsAre("na sever"));
}

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

TEST(Briefcase, GivesHimAwayInTheCorridor) {
    Play play = Play::In(sector::Crossing, {Briefcase});
    const std::string before = play.View();
    play.Go("na sever");
    EXPECT_EQ(play.Output(), before + "\r\n\r\n" + play.Text(191));
    EXPECT_EQ(play.State().GameOver, True);
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

TEST(StepEvents, ComeOneByOneBeforeTheCaptainsCabin) {
    Play play = Play::In(sector::EastEnd, {Diskette});
    GameState& state = play.State();
    state.ReplicatorState = ReplicatorStage::Repaired;
    state.CaptainAlertState = CaptainAlertStage::Alerted;
    state.DocumentsRead = state.Documents2Read = True;
    play.Place(Captain, sector::None);
    const auto walkTo = [&](std::string_view way) {
        play.Go(way);
        return play.Told();
    };
    EXPECT_THAT(walkTo("na východ"), ElementsAre(sector::Hangar, 77));
    EXPECT_THAT(walkTo("na západ"), ElementsAre(sector::EastEnd, 78));
    EXPECT_THAT(walkTo("na východ"), ElementsAre(sector::Hangar, 0));
    EXPECT_TRUE(play.Lies(Captain, sector::CaptainsCabin) && play.Lies(ManInDarkGlasses, sector::DiningHall));
    play.Place(Captain, sector::None);
    EXPECT_THAT(walkTo("na západ"), ElementsAre(sector::EastEnd, 215));
    state.CaptainAlertState = CaptainAlertStage::DisketteFound;
    EXPECT_THAT(walkTo("na východ"), ElementsAre(sector::Hangar));
    EXPECT_THAT(walkTo("na západ"), ElementsAre(sector::EastEnd, 218));
    EXPECT_TRUE(play.Lies(Captain, sector::CaptainsCabin));
    EXPECT_EQ(state.CaptainAlertState, CaptainAlertStage::Returned);
}

TEST(StepEvents, EndTheStoryWhenTheCaptainFindsHisWardrobeOpen) {
    Play play = Play::In(sector::Hangar);
    play.State().CaptainAlertState = CaptainAlertStage::DisketteFound;
    play.Go("na západ");
    EXPECT_THAT(play.Told(), ElementsAre(sector::EastEnd));  // closed, and the diskette is not carried
    play.State().CaptainWardrobeOpen = True;
    play.MoveTo(sector::Hangar);
    play.Go("na západ");
    EXPECT_THAT(play.Told(), ElementsAre(sector::EastEnd, 217));
    EXPECT_EQ(play.State().GameOver, True);
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
