#include "core/stages.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

TEST(CabinDoor, OpensOnceTheKeyHasTurned) {
    Play play = Play::InCabin({CabinKey});
    play.Open(CabinDoorInside);
    EXPECT_EQ(play.LastSaid(), "Dveře jsou zamčené!");
    play.Use(CabinKey, CabinDoorInside);
    EXPECT_THAT(play.Said(), ElementsAre("Odemkl jsi dveře speciálním klíčem...",
                                         "A hele! Na terminál zrovna přišla nějaká zpráva! Od koho asi bude...?"));
    play.Open(CabinDoorInside);
    EXPECT_THAT(play.Exits(), Contains("na sever"));
    play.Use(CabinKey, CabinDoorInside);
    EXPECT_EQ(play.LastSaid(), "Nemůžeš zamknout dveře, když jsou otevřené!");
    play.Close(CabinDoorInside);
    EXPECT_THAT(play.Exits(), Not(Contains("na sever")));
    play.Use(CabinKey, CabinDoorInside);
    EXPECT_EQ(play.LastSaid(), "Klíčem jsi dveře zamkl...");
    play.Use(CabinKey, CabinDoorInside);
    EXPECT_THAT(play.Said(), ElementsAre("Odemkl jsi dveře speciálním klíčem..."));
}

}  // namespace
