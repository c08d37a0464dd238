#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;

TEST(CaptainsCabin, IsSearchedOnceTheArsenalHasBeenSeen) {
    Play play = Play::In(sector::EastEnd);
    GameState& state = play.State();
    state.CorridorEventSeen = True;
    EXPECT_THAT(play.Open(CaptainDoorOutside).Told(), ElementsAre(79));
    play.MoveTo(sector::StoreBackRoom);
    EXPECT_THAT(play.Examine(Arsenal).Told(), ElementsAre(123));
    play.MoveTo(sector::EastEnd);
    play.Open(CaptainDoorOutside).Go("na sever");
    EXPECT_THAT(play.Open(CaptainWardrobe).Told(), ElementsAre(100));
    EXPECT_THAT(play.Examine(CaptainDesk).Told(), ElementsAre(93));
    EXPECT_THAT(play.Talk(Captain).Told(), ElementsAre(133, sector::CaptainsCabin));
    EXPECT_FALSE(play.Sees(Captain));

    EXPECT_THAT(play.Open(CaptainWardrobe).Told(), ElementsAre(0));
    EXPECT_THAT(play.Examine(CaptainWardrobe).Told(), ElementsAre(91, 0));
    EXPECT_THAT(play.Examine(CaptainDesk).Told(), ElementsAre(93, 134, sector::CaptainsCabin));
    EXPECT_THAT(play.Examine(CaptainDesk).Told(), ElementsAre(93, 135, sector::CaptainsCabin));
    EXPECT_THAT(play.Examine(CaptainDesk).Told(), ElementsAre(93));
    play.Take(Documents).Take(Documents2);
    EXPECT_THAT(play.Examine(Documents).Told(), ElementsAre(136));
    EXPECT_THAT(play.Examine(Documents2).Told(), ElementsAre(137));
    EXPECT_THAT(play.Use(Documents2, CaptainDesk).Told(), ElementsAre(0, sector::CaptainsCabin));
    EXPECT_FALSE(play.Carries(Documents2));
    EXPECT_THAT(play.Examine(CaptainDesk).Told(), ElementsAre(93, 135, sector::CaptainsCabin));
    EXPECT_EQ(play.Take(Documents2).Use(Documents2, CaptainDesk).Said().front(), "Vrátil jsi dokumenty zpět do stolu na své místo.");
    play.Use(Documents, CaptainDesk);

    play.Open(CaptainDoorInside).Go("na jih");
    EXPECT_THAT(play.Told(), ElementsAre(sector::EastEnd, 0));
    EXPECT_TRUE(play.Lies(ManInDarkGlasses, sector::DiningHall) && play.Lies(Captain, sector::CaptainsCabin));
    EXPECT_EQ(state.CaptainWardrobeOpen, False);
    EXPECT_EQ(state.GameOver, False);
}

TEST(CaptainsCabin, HidesTheDisketteBehindAFalseAlarm) {
    Play play = Play::In(sector::CaptainsCabin);
    GameState& state = play.State();
    state.CaptainDismissed = True;
    EXPECT_THAT(play.Open(CaptainWardrobe).Told(), ElementsAre(100));  // he has come back
    play.Place(Captain, sector::None);
    state.CaptainAlertState = CaptainAlertStage::OnTheBridge;
    EXPECT_THAT(play.Examine(CaptainWardrobe).Told(), ElementsAre(91));
    EXPECT_THAT(play.Open(CaptainWardrobe).Examine(CaptainWardrobe).Told(), ElementsAre(91, 216, sector::CaptainsCabin));
    EXPECT_TRUE(play.Sees(Diskette));
    EXPECT_THAT(play.Examine(CaptainWardrobe).Told(), ElementsAre(91, 0));
    play.State().BriefcaseSearched = True;
    EXPECT_THAT(play.Examine(CaptainDesk).Told(), ElementsAre(93));
}

TEST(Captain, GreetsOnceBeforeTheStoryHasBegun) {
    Play play = Play::In(sector::CaptainsCabin);
    EXPECT_THAT(play.Talk(Captain).Told(), ElementsAre(98));
    EXPECT_THAT(play.Talk(Captain).Told(), ElementsAre(99));
}

TEST(MaintenanceMan, LosesHisAuthorisationOverTheNewspaper) {
    Play play = Play::In(sector::DiningHall, {Newspaper});
    GameState& state = play.State();
    play.Place(ManInDarkGlasses, sector::DiningHall);
    state.DarkGlassesState = DarkGlassesStage::InDiningHall;
    EXPECT_THAT(play.Talk(ManInDarkGlasses).Told(), ElementsAre(140, sector::DiningHall));
    EXPECT_EQ(state.DarkGlassesState, DarkGlassesStage::Gone);
    play.Place(MaintenanceMan, sector::DiningHall);
    EXPECT_THAT(play.Talk(MaintenanceMan).Told(), ElementsAre(144));
    EXPECT_THAT(play.Talk(MaintenanceMan).Told(), ElementsAre(145));
    EXPECT_THAT(play.Examine(MaintenanceMan).Told(), ElementsAre(142, 143, sector::DiningHall));
    EXPECT_THAT(play.Examine(MaintenanceMan).Told(), ElementsAre(142));
    EXPECT_THAT(play.Use(Newspaper, MaintenanceMan).Told(), ElementsAre(147));
    EXPECT_FALSE(play.Carries(Newspaper));
    EXPECT_THAT(play.Take(Authorisation).Told(), ElementsAre(0, 0, sector::DiningHall));
    EXPECT_TRUE(play.Carries(Authorisation));
}

TEST(MaintenanceMan, CatchesAPickpocket) {
    Play play = Play::In(sector::DiningHall);
    play.Place(Authorisation, sector::DiningHall);
    play.State().NewspaperGiven = 7;
    EXPECT_THAT(play.Take(Authorisation).Told(), ElementsAre(148));
    EXPECT_FALSE(play.Carries(Authorisation));
    EXPECT_TRUE(play.Proceed().Ended());
}

TEST(DiningHall, ServesOnce) {
    Play play = Play::In(sector::DiningHall);
    EXPECT_THAT(play.Use(ServingHatch, Self).Told(), ElementsAre(82));
    EXPECT_THAT(play.Use(ServingHatch, Self).Told(), ElementsAre(81));
    EXPECT_THAT(play.Open(DiningHallDoorInside).Told(), ElementsAre(80));
    EXPECT_THAT(play.Close(DiningHallDoorInside).Told(), ElementsAre(80));
}

TEST(Guard, LetsHimIntoTheEngineRoom) {
    Play play = Play::In(sector::WestEnd, {Authorisation});
    EXPECT_THAT(play.Talk(Guard).Told(), ElementsAre(151));
    EXPECT_THAT(play.Talk(Guard).Told(), ElementsAre(152));
    for (int time = 0; time < 2; ++time) {
        EXPECT_THAT(play.Use(Authorisation, Guard).Told(), ElementsAre(153, sector::EngineRoom));
        EXPECT_EQ(play.State().Sectors[sector::Crossing].Items.size(), 1);
        play.Go("na východ");
        EXPECT_EQ(play.State().CurrentSector, sector::WestEnd);
    }
    EXPECT_TRUE(play.Carries(Authorisation) && play.Lies(Technician, sector::Crossing));
}

TEST(Office, IsLockedByTheTechniciansCard) {
    Play play = Play::In(sector::Crossing, {Plans});
    GameState& state = play.State();
    play.Place(Technician, sector::Crossing);
    EXPECT_THAT(play.Talk(Technician).Told(), ElementsAre(160, sector::Crossing));
    EXPECT_THAT(play.Take(SecurityCard).Talk(Technician).Told(), ElementsAre(161));
    EXPECT_THAT(play.Use(Plans, Technician).Told(), ElementsAre(173));
    play.MoveTo(sector::EngineRoom);
    EXPECT_EQ(play.Open(OfficeDoorOutside).LastSaid(), "Dveře jsou zamčené!");
    EXPECT_THAT(play.Use(SecurityCard, OfficeDoorOutside).Told(), ElementsAre(163));
    play.Open(OfficeDoorOutside);
    EXPECT_THAT(play.Use(SecurityCard, OfficeDoorOutside).Told(), ElementsAre(164));
    EXPECT_EQ(play.Open(OfficeDoorOutside).LastSaid(), "Dveře jsou zamčené!");
    EXPECT_THAT(play.Exits(), ElementsAre("na jih", "na východ"));
    play.Go("na jih");

    EXPECT_THAT(play.Examine(OfficeWardrobe).Told(), ElementsAre(165, 172, sector::Office));
    EXPECT_THAT(play.Examine(OfficeWardrobe).Told(), ElementsAre(165, 172));  // no second one
    EXPECT_THAT(play.Open(OfficeWardrobe).Close(OfficeWardrobe).Told(), ElementsAre(0, sector::Office));
    EXPECT_FALSE(play.Sees(OperatingTerminal));
    play.Examine(OfficeWardrobe).Take(OperatingTerminal);
    EXPECT_THAT(play.Examine(OfficeWardrobe).Told(), ElementsAre(165));
    play.MoveTo(sector::Crossing);
    EXPECT_THAT(play.Use(SecurityCard, Technician).Told(), ElementsAre(175));
    play.MoveTo(sector::WestEnd);
    state.Sectors[sector::WestEnd].West = True;
    play.Go("na západ");
    EXPECT_EQ(state.OperatingTerminalBrought, True);
    play.Put(OperatingTerminal).Take(OperatingTerminal);
    EXPECT_EQ(state.OperatingTerminalBrought, True);
    play.MoveTo(sector::Office);
    play.Put(OperatingTerminal);
    EXPECT_EQ(state.OperatingTerminalBrought, False);
    EXPECT_THAT(play.Open(OfficeWardrobe).Close(OfficeWardrobe).Told(), ElementsAre(0));
    EXPECT_TRUE(play.Sees(OperatingTerminal));  // it is his now
    state.OperatingTerminalBrought = True;
    play.MoveTo(sector::Crossing);
    EXPECT_THAT(play.Use(SecurityCard, Technician).Told(), ElementsAre(174));
    EXPECT_FALSE(play.Carries(SecurityCard));
}

}  // namespace
