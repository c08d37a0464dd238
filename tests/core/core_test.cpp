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

// A saved game holds the flags by their places alone, so this changes when a flag is moved, renamed, added or dropped.
TEST(StoryFlags, KeepTheirPlaces) {
    EXPECT_EQ(StoryFlags.size(), 85);
    std::uint32_t sum = 0;
    for (const StoryFlag& flag : StoryFlags) {
        for (const char letter : flag.Name) sum = 31 * sum + static_cast<unsigned char>(letter);
    }
    EXPECT_EQ(sum, 1217310028U);
}

}  // namespace
