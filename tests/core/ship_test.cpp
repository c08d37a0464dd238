#include <map>

#include "core/output.h"
#include "core/verbs.h"
#include "tests/play.h"

namespace {

using enum Item;
using testing::ElementsAre;

TEST(Ship, LeadsThroughEveryExitIntoASector) {
    SectorTable ship;
    BuildSectors(ship);
    for (std::int16_t number = sector::Cabin; number <= LastSector; ++number) {
        const SectorRecord& here = ship[number];
        EXPECT_EQ(FindSector(ship, here.X, here.Y), number);  // no two in one place
        const auto leads = [&](Boolean exit, int dx, int dy) {
            return exit == False || FindSector(ship, static_cast<std::int16_t>(here.X + dx), static_cast<std::int16_t>(here.Y + dy)) != 0;
        };
        EXPECT_TRUE(leads(here.North, 0, -1) && leads(here.South, 0, 1)) << number;
        EXPECT_TRUE(leads(here.West, number == sector::Crossing ? -2 : -1, 0)) << number;
        EXPECT_TRUE(leads(here.East, number == sector::WestEnd ? 2 : 1, 0)) << number;
    }
    EXPECT_EQ(FindSector(ship, 3, 2), sector::None);
    EXPECT_EQ(FindSector(ship, 0, 0), sector::None);
}

TEST(Ship, HoldsEveryItemOnceUnlessTheStoryBringsItLater) {
    SectorTable ship;
    BuildSectors(ship);
    std::map<std::int16_t, int> count;
    for (const SectorRecord& each : ship.All()) {
        for (const std::int16_t item : each.Items) ++count[item];
    }
    EXPECT_EQ(count.size(), NumberOf(LastItem) - 28 - 1);  // 28 come later and one never does
    for (const auto& [item, times] : count) {
        EXPECT_EQ(times, 1) << item;
        EXPECT_NE(ItemName(Item{item}), "") << item;
    }
}

TEST(Ship, MovesTheLastItemIntoAGap) {
    SectorRecord room{.Items = {1, 2, 3, 4}};
    RemoveItem(room, Item{2});
    EXPECT_THAT(room.Items, ElementsAre(1, 4, 3));
    RemoveItem(room, Item{3});
    RemoveItem(room, Item{9});
    EXPECT_THAT(room.Items, ElementsAre(1, 4));
}

TEST(ItemName, IsEmptyForWhatIsNoItem) {
    for (const int number : {-1, 0, 111, 1000, 1002}) EXPECT_EQ(ItemName(Item{static_cast<std::int16_t>(number)}), "");
    EXPECT_EQ(ItemName(LastItem), "tepelný snímač");
    EXPECT_EQ(ItemName(Self), "sebe");
}

TEST(Output, IsEmptiedAfterTwoThousandLines) {
    Play play = Play::InCabin();
    ui::TextBox& box = play.Form1().Text1;
    std::string lines(2 * 1999, '\n');
    for (std::size_t i = 0; i < lines.size(); i += 2) lines[i] = '\r';
    box.SetText(lines);
    LimitOutput(play.TheGame(), box);
    EXPECT_EQ(box.Text(), lines);
    box.AppendText("\r\n");
    play.Choose(verb::Version);
    play.Proceed();
    EXPECT_EQ(box.Text(), "\r\n\r\nVerze programu: 1.0.42 (v1.01)");
}

// Every word of the state is a story flag in the table, or one of those that a saved game stores in front of them.
TEST(StoryFlags, StandInTheTableInTheOrderOfTheState) {
    GameState state;
    const auto* first = &state.CabinDoorOpen;
    std::ptrdiff_t place = 0;
    for (const StoryFlag& flag : StoryFlags()) {
        EXPECT_EQ(&(state.*flag.Value) - first, place++) << flag.Name;
        EXPECT_EQ(state.*flag.Value, 0);
    }
    EXPECT_EQ(place, 85);
    EXPECT_EQ(StoryFlags().back().Value, &GameState::UniformPlaced);
    EXPECT_LE(reinterpret_cast<const char*>(&state + 1) - reinterpret_cast<const char*>(&state.UniformPlaced), 8);
}

}  // namespace
