#include "core/text_store.h"

#include <gtest/gtest.h>

#include "core/output.h"
#include "tests/play.h"
#include "tools/pack_texts.h"
#include "ui/errors.h"

namespace {

// The packed words of as many texts as the story has, all of them "ž".
std::vector<std::uint16_t> Packed() {
    std::string source;
    for (int number = 1; number <= LastText; ++number) source += std::to_string(number) + ": ž\n";
    return tools::PackTexts(source, "texts.txt");
}

TextStore Decoded(const std::vector<std::uint16_t>& words, std::size_t bytes = SIZE_MAX) {
    Bytes file;
    for (const std::uint16_t word : words) {
        file.push_back(static_cast<std::uint8_t>(word & 0xFF));
        file.push_back(static_cast<std::uint8_t>(word >> 8));
    }
    file.resize(std::min(file.size(), bytes));
    return TextStore::Decode(file);
}

TEST(TextStore, HandsOutTheTextsByNumber) {
    auto words = Packed();
    words[1] = 0;  // an empty text is a text
    words.erase(words.begin() + 3);
    const TextStore texts = Decoded(words);
    EXPECT_EQ(texts.Text(1), "");
    EXPECT_EQ(texts.Text(LastText), "ž");
    for (const int number : {-1, 0, LastText + 1}) EXPECT_EQ(texts.Text(static_cast<TextNumber>(number)), std::nullopt);
}

TEST(TextStore, SubtractsTheKeyOfEachTextInSixteenBits) {
    auto words = Packed();
    words[2] = 0xFFFF;
    words[3] = 10;
    words[5] = 10;
    words[6] = 10 + 'a';
    const TextStore texts = Decoded(words);
    EXPECT_EQ(texts.Text(1), "\x0B");
    EXPECT_EQ(texts.Text(2), "a");
}

TEST(TextStore, RefusesADamagedFile) {
    const auto words = Packed();
    for (const std::size_t bytes : {std::size_t{0}, std::size_t{1}, std::size_t{2}, words.size(), 2 * words.size() - 1}) {
        EXPECT_THROW(Decoded(words, bytes), ui::GameError) << bytes << " bytes";
    }
    const auto refuses = [&](std::size_t position, int value) {
        auto damaged = words;
        damaged[position] = static_cast<std::uint16_t>(value);
        EXPECT_THROW(Decoded(damaged), ui::GameError) << value << " at word " << position;
    };
    refuses(0, LastText - 1);  // too few texts
    refuses(0, LastText + 1);  // one more than there is
    refuses(0, -1);
    refuses(1, -1);  // a length
    refuses(1, 0x7FFF);
    refuses(3, words[2] - 1);    // a character below 0
    refuses(3, words[2] + 256);  // and one beyond the code page
}

TEST(TextStore, MissingKeepsTheGameFromStarting) {
    const TemporaryFolder folder;
    EXPECT_THROW(PrepareTextStore(folder.Path), ui::GameError);
}

TEST(StoryText, StandsAloneOrAfterABlankLineWithTheCaretAtItsEnd) {
    Play play;
    ui::TextBox& box = play.Form1().Text1;
    box.SetText("A");
    ShowStoryText(play.TheGame(), 81);
    EXPECT_EQ(box.Text(), "A\r\n\r\n" + play.Text(81));
    EXPECT_EQ(box.Caret(), box.Text().size());
    ShowStoryText(play.TheGame(), 81, Output::Replace);
    EXPECT_EQ(box.Text(), play.Text(81));
    testing::internal::CaptureStderr();
    ShowStoryText(play.TheGame(), LastText + 1, Output::Replace);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "orvel-tavoren: no story text has the number 273\n");
    EXPECT_EQ(box.Text(), play.Text(81));
}

}  // namespace
