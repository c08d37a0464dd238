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

TEST(KeypadDoor, MustNotBeOpenedWhileSomebodyIsInside) {
    Play play = Play::In(sector::LabCorridor);
    play.State().KeypadDoorUnlocked = True;
    EXPECT_THAT(play.Open(KeypadDoorOutside).Told(), ElementsAre(183));
    EXPECT_EQ(play.State().KeypadDoorOpen, False);
    EXPECT_TRUE(play.Proceed().Ended());
}

TEST(Briefcase, IsSearchedWhereItLies) {
    Play play = Play::In(sector::InnerRoom, {Tools, Newspaper, Plans, Pencil, MetalRod});
    EXPECT_THAT(play.Examine(Briefcase).Told(), ElementsAre(186));
    EXPECT_THAT(play.Open(Briefcase).Take(Briefcase).Told(), ElementsAre(0));  // no room for it
    EXPECT_EQ(play.Close(Briefcase).LastSaid(), "Kufřík je již zavřený!");
    EXPECT_THAT(play.Open(Briefcase).Examine(Briefcase).Told(), ElementsAre(186, 192));
    EXPECT_THAT(play.Examine(Briefcase).Told(), ElementsAre(186));
    EXPECT_EQ(play.State().StoreMessageState, MessageState::Waiting);
    EXPECT_THAT(play.Examine(InnerRoomWardrobe).Told(), ElementsAre(189));
    EXPECT_THAT(play.Open(InnerRoomWardrobe).Examine(InnerRoomWardrobe).Told(), ElementsAre(189, 190));
    play.MoveTo(sector::DiningHall);
    EXPECT_THAT(play.Talk(Veteran).Told(), ElementsAre(194));
    EXPECT_THAT(play.Talk(Veteran).Told(), ElementsAre(195));
}

TEST(Bomb, SitsBehindThePanel) {
    Play play = Play::In(sector::EngineRoom, {Tools});
    GameState& state = play.State();
    EXPECT_EQ(play.Use(Tools, Panel).LastSaid(), "To není moc dobrý nápad...");
    state.ContainerStoryState = ContainerStage::AgentTold;
    EXPECT_THAT(play.Use(Tools, Panel).Told(), ElementsAre(212, sector::EngineRoom));
    EXPECT_EQ(state.BridgeAlertReady, True);
    EXPECT_EQ(play.Use(Tools, Panel).LastSaid(), Refusal);
    EXPECT_THAT(play.Examine(SeismicBomb).Told(), ElementsAre(213, 214, sector::EngineRoom));
    EXPECT_THAT(play.Take(Fingernail).Examine(SeismicBomb).Told(), ElementsAre(213));
}

TEST(Computer, ReadsBothLists) {
    Play play = Play::In(sector::GuestCabin, {Diskette});
    GameState& state = play.State();
    EXPECT_THAT(play.Use(Diskette, Computer).Told(), ElementsAre(220));
    EXPECT_EQ(play.Use(Diskette, Computer).LastSaid(), "Bohužel tento počítač nemá disketovou mechaniku.");
    play.MoveTo(sector::Store);
    EXPECT_THAT(play.Talk(Attendant).Told(), ElementsAre(221, sector::Store));
    play.Take(FloppyDrive).MoveTo(sector::GuestCabin);
    EXPECT_EQ(play.Use(Diskette, Computer).LastSaid(), Refusal);
    EXPECT_THAT(play.Use(FloppyDrive, Computer).Told(), ElementsAre(223));
    EXPECT_THAT(play.Use(Diskette, Computer).Told(), ElementsAre(224, sector::GuestCabin));
    EXPECT_FALSE(play.Carries(Diskette) || play.Carries(FloppyDrive));
    play.MoveTo(sector::Laboratory);
    EXPECT_THAT(play.Examine(WasteBin).Told(), ElementsAre(50));
    play.MoveTo(sector::GuestCabin);
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(225));
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(227));

    play.MoveTo(sector::Laboratory);
    EXPECT_THAT(play.Examine(PlasmaSamples).Told(), ElementsAre(48));
    EXPECT_THAT(play.Examine(WasteBin).Told(), ElementsAre(50, 226, sector::Laboratory));
    EXPECT_THAT(play.Examine(WasteBin).Told(), ElementsAre(50, 226));  // no second one
    EXPECT_THAT(play.Take(OldDiskette).Examine(WasteBin).Told(), ElementsAre(50, 226));
    play.MoveTo(sector::GuestCabin);
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(228));
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(229));
    EXPECT_THAT(play.Use(OldDiskette, Computer).Told(), ElementsAre(231, sector::GuestCabin));
    EXPECT_FALSE(play.Sees(ManInDarkGlasses));
    play.MoveTo(sector::Laboratory);
    play.Examine(WasteBin);
    EXPECT_FALSE(play.Sees(OldDiskette));  // it was used up
    EXPECT_EQ(state.ComputerState, ComputerStage::OldDisketteFound);
    EXPECT_THAT(play.Examine(PlasmaSamples).Told(), ElementsAre(48, 232, sector::Laboratory));
    EXPECT_THAT(play.Examine(PlasmaSamples).Told(), ElementsAre(48));
    const auto& items = state.Sectors[sector::Laboratory].Items;
    EXPECT_THAT(std::vector(items.end() - 4, items.end()), ElementsAre(102, 30, 103, 104));
}

TEST(DnaVessels, TakeOneSampleAtATime) {
    Play play = Play::In(sector::Laboratory, {SampleVega, SampleJunett, SampleDeyopel, SampleDebadon, Fingernail});
    GameState& state = play.State();
    EXPECT_EQ(play.Use(Fingernail, LabTerminal).LastSaid(), Refusal);
    state.OldDisketteUsed = True;
    EXPECT_THAT(play.Use(Fingernail, LabTerminal).Told(), ElementsAre(237));
    EXPECT_EQ(state.DnaReferenceLoaded, True);
    for (const auto& [sample, text] : {std::pair(SampleJunett, 241), std::pair(SampleVega, 240), std::pair(SampleDeyopel, 242)}) {
        EXPECT_THAT(play.Use(sample, LabTerminal).Told(), ElementsAre(text));
        EXPECT_EQ(state.DnaSampleItem, NumberOf(sample));
        EXPECT_FALSE(play.Carries(sample));
        EXPECT_THAT(play.Use(SampleDebadon, LabTerminal).Told(), ElementsAre(239));
        state.DnaSampleLoaded = False;
    }
    EXPECT_TRUE(play.Carries(SampleDebadon));
    EXPECT_THAT(play.Use(SampleDebadon, LabTerminal).Told(), ElementsAre(243));
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
