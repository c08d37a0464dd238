#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::Contains;
using testing::ElementsAre;

constexpr std::string_view Refusal = "Nezdá se, že by to mělo fungovat.";

TEST(Replicator, IsRepairedStepByStep) {
    Play play = Play::In(sector::Laboratory, {Tools, Coil});
    EXPECT_THAT(play.Use(Tools, Replicator).Told(), ElementsAre(41));
    EXPECT_THAT(play.Talk(Scientist).Told(), ElementsAre(57));
    EXPECT_THAT(play.Talk(Scientist).Told(), ElementsAre(0));
    EXPECT_THAT(play.Examine(Replicator).Told(), ElementsAre(38, 39));
    EXPECT_THAT(play.Examine(Replicator).Told(), ElementsAre(38, 39));
    EXPECT_EQ(play.Use(Coil, Replicator).LastSaid(), Refusal);
    EXPECT_TRUE(play.Carries(Coil));
    EXPECT_THAT(play.Use(Tools, Replicator).Told(), ElementsAre(42));
    EXPECT_THAT(play.Use(Tools, Replicator).Told(), ElementsAre(43));
    EXPECT_THAT(play.Examine(Replicator).Told(), ElementsAre(38, 44));
    EXPECT_THAT(play.Use(Coil, Replicator).Told(), ElementsAre(47));
    EXPECT_FALSE(play.Carries(Coil) || play.Sees(Coil));
    EXPECT_THAT(play.Examine(Replicator).Told(), ElementsAre(38, 45));
    EXPECT_THAT(play.Use(Tools, Replicator).Told(), ElementsAre(46));
    EXPECT_EQ(play.Use(Tools, Replicator).LastSaid(), Refusal);
    EXPECT_THAT(play.Examine(Replicator).Told(), ElementsAre(38, 40));
    EXPECT_THAT(play.Talk(Scientist).Told(), ElementsAre(58));
    EXPECT_THAT(play.Talk(Scientist).Told(), ElementsAre(62));
}

TEST(Attendant, GivesWhatTheRepairsNeed) {
    Play play = Play::In(sector::Store);
    GameState& state = play.State();
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(59));
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(60));
    state.ReplicatorState = ReplicatorStage::Opened;
    state.HangarTerminalState = HangarTerminalStage::Opened;
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(61, sector::Store));
    play.Take(Coil);
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(121, sector::Store));
    EXPECT_THAT(play.Exits(), Contains("na jih"));
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(60));
    state.DarkGlassesState = DarkGlassesStage::Met;
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(60));
    state.ArchiveFolder5Read = True;
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(149, sector::Store));
    EXPECT_TRUE(play.Sees(Tester));
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(60));
}

TEST(MeshDoor, IsLockedUntilTheAttendantOpensIt) {
    Play play = Play::In(sector::Store);
    EXPECT_THAT(play.Open(WireDoorOutside).Told(), ElementsAre(70));
    play.MoveTo(sector::StoreBackRoom);
    EXPECT_THAT(play.Open(WireDoorInside).Told(), ElementsAre(70));
}

TEST(BrokenTerminal, GivesItsDispenserForTheHangarTerminal) {
    Play play = Play::In(sector::StoreBackRoom, {Tools});
    EXPECT_THAT(play.Examine(BrokenTerminal).Told(), ElementsAre(125));
    EXPECT_THAT(play.Use(Tools, BrokenTerminal).Told(), ElementsAre(127));
    EXPECT_THAT(play.Use(Tools, BrokenTerminal).Told(), ElementsAre(128));
    EXPECT_THAT(play.Examine(BrokenTerminal).Told(), ElementsAre(125, 129, sector::StoreBackRoom));
    play.Take(IonDispenser);
    EXPECT_THAT(play.Examine(BrokenTerminal).Told(), ElementsAre(125));
    EXPECT_THAT(play.Use(Tools, BrokenTerminal).Told(), ElementsAre(130));
    EXPECT_EQ(play.Use(Tools, BrokenTerminal).LastSaid(), Refusal);

    play.MoveTo(sector::Hangar);
    EXPECT_EQ(play.Use(IonDispenser, HangarTerminal).LastSaid(), Refusal);
    EXPECT_TRUE(play.Carries(IonDispenser));
    EXPECT_THAT(play.Examine(HangarTerminal).Told(), ElementsAre(102, 109));
    EXPECT_THAT(play.Use(Tools, HangarTerminal).Told(), ElementsAre(110));
    EXPECT_THAT(play.Use(Tools, HangarTerminal).Told(), ElementsAre(113));
    EXPECT_THAT(play.Examine(HangarTerminal).Told(), ElementsAre(102, 114));
    EXPECT_THAT(play.Use(IonDispenser, HangarTerminal).Told(), ElementsAre(111));
    EXPECT_FALSE(play.Carries(IonDispenser));
    EXPECT_THAT(play.Examine(HangarTerminal).Told(), ElementsAre(102, 115));
    EXPECT_THAT(play.Use(HangarTerminal, Self).Told(), ElementsAre(132));
    EXPECT_THAT(play.Use(Tools, HangarTerminal).Told(), ElementsAre(112));
    EXPECT_EQ(play.Use(Tools, HangarTerminal).LastSaid(), Refusal);
    EXPECT_THAT(play.Examine(HangarTerminal).Told(), ElementsAre(102));
    play.InPanel({"exit"});
    EXPECT_EQ(play.Use(HangarTerminal, Self).LastSaid(), "Spustil jsi terminál...");
}

TEST(Worker, SpeaksOfTheTerminalAndLeavesHisManual) {
    Play play = Play::In(sector::Hangar);
    EXPECT_THAT(play.Talk(Worker).Told(), ElementsAre(117));
    EXPECT_THAT(play.Talk(Worker).Told(), ElementsAre(118));
    play.State().CorridorEventSeen = True;
    EXPECT_THAT(play.Talk(Worker).Told(), ElementsAre(116));
    EXPECT_THAT(play.Talk(Worker).Told(), ElementsAre(119));
    play.State().HangarTerminalState = HangarTerminalStage::Repaired;
    EXPECT_THAT(play.Talk(Worker).Told(), ElementsAre(120, sector::Hangar));
    EXPECT_TRUE(play.Sees(Manual) && !play.Sees(Worker));
}

TEST(OldDoor, OpensOnTheContainer) {
    Play play = Play::In(sector::StoreBackRoom, {Tools});
    GameState& state = play.State();
    EXPECT_THAT(play.Examine(OldDoor).Told(), ElementsAre(124));
    EXPECT_EQ(play.Use(Tools, OldDoor).LastSaid(), Refusal);
    state.BriefcaseSearched = True;
    EXPECT_THAT(play.Use(Tools, OldDoor).Told(), ElementsAre(196));
    EXPECT_THAT(play.Examine(OldDoor).Told(), ElementsAre(124, 197));
    EXPECT_THAT(play.Open(OldDoor).Told(), ElementsAre(203));
    EXPECT_THAT(play.Use(Tools, OldDoor).Told(), ElementsAre(198));
    EXPECT_EQ(play.Use(Tools, OldDoor).LastSaid(), Refusal);
    EXPECT_THAT(play.Examine(OldDoor).Told(), ElementsAre(124, 199));
    EXPECT_THAT(play.Examine(OldDoor).Told(), ElementsAre(124));
    EXPECT_THAT(play.Open(OldDoor).Told(), ElementsAre(0, 204, sector::StoreBackRoom));
    EXPECT_EQ(play.Open(OldDoor).LastSaid(), "Dveře jsou již otevřené!");
    play.Close(OldDoor);
    EXPECT_FALSE(play.Sees(Container));
    EXPECT_THAT(play.Open(OldDoor).Told(), ElementsAre(0, sector::StoreBackRoom));
    EXPECT_TRUE(play.Sees(Container));

    play.MoveTo(sector::Store);
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(201));
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(206));
    EXPECT_TRUE(play.Lies(ManInDarkGlasses, sector::LabCorridor));
    play.MoveTo(sector::LabCorridor);
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(208, 209, sector::LabCorridor));
    EXPECT_FALSE(play.Sees(ManInDarkGlasses));
    EXPECT_EQ(state.ContainerStoryState, ContainerStage::AgentTold);
}

TEST(OldDoor, StaysOnTheAttendantsMind) {
    Play play = Play::In(sector::Store);
    play.State().BriefcaseSearched = True;
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(200));
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(202));
    play.State().OldDoorState = OldDoorStage::Repaired;
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(201));
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(59));
}

}  // namespace
