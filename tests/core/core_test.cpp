#include "core/output.h"
#include "core/verbs.h"
#include "tests/play.h"

namespace {

using enum Item;

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
