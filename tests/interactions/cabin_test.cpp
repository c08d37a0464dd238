#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

constexpr std::string_view Refusal = "Nezdá se, že by to mělo fungovat.";

TEST(CabinDoor, OpensOnceTheKeyHasTurned) {
    Play play = Play::InCabin({CabinKey});
    play.Open(CabinDoorInside);
    EXPECT_EQ(play.LastSaid(), "Dveře jsou zamčené!");
    play.Use(CabinKey, CabinDoorInside);
    EXPECT_THAT(play.Said(), ElementsAre("Odemkl jsi dveře speciálním klíčem...",
                                         "A hele! Na terminál zrovna přišla nějaká zpráva! Od koho asi bude...?"));
    play.Open(CabinDoorInside);
    EXPECT_THAT(play.Exits(), Contains("na sever"));
    EXPECT_EQ(play.Use(CabinKey, CabinDoorInside).LastSaid(), "Nemůžeš zamknout dveře, když jsou otevřené!");
    play.Close(CabinDoorInside);
    EXPECT_THAT(play.Exits(), Not(Contains("na sever")));
    EXPECT_EQ(play.Use(CabinKey, CabinDoorInside).LastSaid(), "Klíčem jsi dveře zamkl...");
    play.Use(CabinKey, CabinDoorInside);
    EXPECT_THAT(play.Said(), ElementsAre("Odemkl jsi dveře speciálním klíčem..."));
}

TEST(CabinDoor, BringsNoMessageFromTheCorridor) {
    Play play = Play::In(sector::Corridor, {CabinKey});
    play.Use(CabinKey, CabinDoorOutside);
    EXPECT_THAT(play.Said(), ElementsAre("Odemkl jsi dveře speciálním klíčem..."));
    EXPECT_EQ(play.State().LabMessageState, MessageState::None);
    play.Put(CabinKey);
    EXPECT_EQ(play.Use(CabinKey, CabinDoorOutside).LastSaid(), Refusal);
}

TEST(CabinWardrobe, ShowsTheUniformWhileItIsOpen) {
    Play play = Play::InCabin();
    EXPECT_THAT(play.Examine(CabinWardrobe).Told(), ElementsAre(20));
    play.Open(CabinWardrobe);
    EXPECT_THAT(play.Examine(CabinWardrobe).Told(), ElementsAre(21, sector::Cabin));
    EXPECT_THAT(play.Examine(CabinWardrobe).Told(), ElementsAre(21));
    EXPECT_THAT(play.Take(Uniform).Told(), ElementsAre(25));
    EXPECT_THAT(play.Examine(Uniform).Told(), ElementsAre(22, 72, sector::Cabin));
    EXPECT_THAT(play.Examine(Uniform).Told(), ElementsAre(22));
    play.Take(ScrapOfPaper);
    EXPECT_TRUE(play.Carries(ScrapOfPaper) && play.Sees(Uniform));
    EXPECT_THAT(play.Close(CabinWardrobe).Told(), ElementsAre(0, sector::Cabin));
    EXPECT_FALSE(play.Sees(Uniform));
    play.Open(CabinWardrobe).Examine(CabinWardrobe);
    EXPECT_TRUE(play.Sees(Uniform));
    EXPECT_THAT(play.Examine(Uniform).Told(), ElementsAre(22));
}

TEST(Bathroom, HasOneShowerAndACupboard) {
    Play play = Play::In(sector::Bathroom);
    EXPECT_EQ(play.Use(Shower, Towel).LastSaid(), Refusal);
    EXPECT_THAT(play.Use(Shower, Self).Told(), ElementsAre(55));
    EXPECT_THAT(play.Use(Shower, Self).Told(), ElementsAre(56));
    EXPECT_THAT(play.Examine(BathroomCupboard).Told(), ElementsAre(31));
    EXPECT_THAT(play.Open(BathroomCupboard).Examine(BathroomCupboard).Told(), ElementsAre(32));
}

TEST(Terminals, StartOnlyForHimself) {
    Play play = Play::InCabin({Tools});
    EXPECT_EQ(play.Use(CabinTerminal, Tools).LastSaid(), Refusal);
    EXPECT_EQ(play.Use(CabinTerminal, CabinTerminal).LastSaid(), Refusal);
}

}  // namespace
