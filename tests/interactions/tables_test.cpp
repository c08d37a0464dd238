#include <algorithm>

#include "interactions/doors.h"
#include "interactions/verbs.h"
#include "tests/play.h"

namespace {

using enum Item;

std::vector<Item> AllItems() {
    std::vector<Item> items;
    for (std::int16_t number = 1; number <= NumberOf(LastItem); ++number) items.push_back(Item{number});
    return items;
}

TEST(Doors, LeadFromTheSectorOfEachSideToThatOfTheOther) {
    SectorTable ship;
    BuildSectors(ship);
    for (const Door& door : Doors()) {
        for (std::size_t i = 0; i < 2; ++i) {
            const DoorSide& side = door.Sides[i];
            const SectorRecord& here = ship[side.Sector];
            const SectorRecord& there = ship[door.Sides[1 - i].Sector];
            EXPECT_TRUE(HoldsItem(here, side.Thing)) << NumberOf(side.Thing);
            EXPECT_TRUE(std::ranges::any_of(Ways, [&](const Way& way) {
                return side.Exit == way.Exit && there.X == here.X + way.X && there.Y == here.Y + way.Y;
            })) << NumberOf(side.Thing);
        }
    }
}

TEST(Things, ThatCanBeTakenCanBePutDownAndNoOthers) {
    Play play = Play::InCabin();
    play.State().NewspaperGiven = play.State().CartReleased = True;
    int portable = 0;
    for (const Item item : AllItems()) {
        play.Place(item, sector::Cabin);
        play.Take(item);
        if (play.Carries(item)) {
            ++portable;
            EXPECT_FALSE(play.Sees(item));
            play.Put(item);
            EXPECT_TRUE(play.Sees(item) && !play.Carries(item)) << ItemName(item);
        } else {
            DoPut(play.TheGame(), item);
            EXPECT_EQ(play.LastSaid(), "Tohle nemůžeš položit!") << ItemName(item);
            EXPECT_TRUE(play.Sees(item));
        }
        play.Place(item, sector::None);
    }
    EXPECT_EQ(portable, 33);
}

TEST(Things, MustBeCarriedToBeUsed) {
    Play play = Play::In(sector::Bathroom);
    GameState& state = play.State();
    state.OldDisketteUsed = state.BombOnCart = state.CartOnTeleport = state.BriefcaseSearched = True;
    play.Clear();
    for (const Item used : AllItems()) {
        for (const Item target : AllItems()) DoUse(play.TheGame(), used, target);
    }
    const auto said = play.Said();
    const std::size_t pairs = AllItems().size() * AllItems().size();
    EXPECT_EQ(std::ranges::count(said, "Nezdá se, že by to mělo fungovat."), pairs);
    EXPECT_EQ(said.size(), 1 + pairs);  // the view and the refusals
}

}  // namespace
