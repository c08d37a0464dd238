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

TEST(Doors, ShareTheirFlagAndTheirLockWithTheOtherSide) {
    SectorTable ship;
    BuildSectors(ship);
    for (const DoorSide& door : DoorSides()) {
        const auto other =
            std::ranges::find_if(DoorSides(), [&](const DoorSide& each) { return each.Open == door.Open && each.Side != door.Side; });
        ASSERT_NE(other, DoorSides().end()) << NumberOf(door.Side);
        EXPECT_EQ(other->Unlocked, door.Unlocked);
        EXPECT_TRUE(HoldsItem(ship[door.Sector], door.Side)) << NumberOf(door.Side);
        const SectorRecord& here = ship[door.Sector];
        const SectorRecord& there = ship[other->Sector];
        const auto leads = [&](Boolean SectorRecord::*way, int dx, int dy) {
            return door.Exit == way && there.X == here.X + dx && there.Y == here.Y + dy;
        };
        EXPECT_TRUE(leads(&SectorRecord::North, 0, -1) || leads(&SectorRecord::South, 0, 1) || leads(&SectorRecord::West, -1, 0) ||
                    leads(&SectorRecord::East, 1, 0))
            << NumberOf(door.Side);
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
