#include "tools/pack_texts.h"

#include <gmock/gmock.h>

#include <string>

namespace {

std::string Refusal(const std::string& source) {
    try {
        tools::PackTexts(source, "texts.txt");
    } catch (const tools::PackingError& error) {
        return error.what();
    }
    return "packed";
}

// What a reader of the packed file gets back for the text that begins at `position`.
std::string Decoded(const std::vector<std::uint16_t>& words, std::size_t position) {
    std::string codes;
    for (std::size_t i = 0; i < words[position]; ++i) {
        codes += static_cast<char>(static_cast<std::uint16_t>(words[position + 2 + i] - words[position + 1]));
    }
    return codes;
}

TEST(PackTexts, ShiftsWindows1250CodesByAKeyOfEachText) {
    const auto words = tools::PackTexts("# for writers\n1: Žlutý kůň\n\n2: \n3: Žár", "texts.txt");
    ASSERT_EQ(words.size(), 1 + (2 + 9) + 2 + (2 + 3));
    EXPECT_EQ(words[0], 3);
    EXPECT_EQ(Decoded(words, 1), "\x8Elut\xFD k\xF9\xF2");
    EXPECT_EQ(words[12], 0);
    EXPECT_EQ(Decoded(words, 14), "\x8E\xE1r");
    EXPECT_NE(words[3], words[16]);  // the same letter, hidden differently
}

TEST(PackTexts, HoldsCodesThatWrapAroundSixteenBits) {
    std::string source;
    for (int number = 1; number <= 300; ++number) source += std::to_string(number) + ": ˙\n";  // the last code, 255
    const auto words = tools::PackTexts(source, "texts.txt");
    bool wrapped = false;
    for (std::size_t position = 1; position < words.size(); position += 3) {
        EXPECT_EQ(Decoded(words, position), "\xFF");
        wrapped |= words[position + 2] < words[position + 1];
    }
    EXPECT_TRUE(wrapped);
}

TEST(PackTexts, NamesTheLineOfACharacterThatTheCodePageLacks) {
    EXPECT_EQ(Refusal("1: Dobré\n\n2: Dobré ráno ☀\n"), "texts.txt:3: '☀' U+2600 is not in Windows-1250, at character 12 of the text");
    EXPECT_EQ(Refusal("1: \xC5\n"), "texts.txt:1: a byte that is not UTF-8 is not in Windows-1250, at character 1 of the text");
}

TEST(PackTexts, RefusesATextThatIsBroken) {
    const std::string expected = "expected \"NUMBER: TEXT\", a comment or an empty line";
    EXPECT_EQ(Refusal("1: Dveře\njsou zavřené.\n"), "texts.txt:2: " + expected);
    EXPECT_EQ(Refusal("1 Dveře\n"), "texts.txt:1: " + expected);
    EXPECT_EQ(Refusal("-1: Dveře\n"), "texts.txt:1: " + expected);
    EXPECT_EQ(Refusal("99999999999999999999999: Dveře\n"), "texts.txt:1: " + expected);
    EXPECT_EQ(Refusal("1: Dveře\r\n"), "texts.txt:1: control character U+000D at character 6 of the text");
}

TEST(PackTexts, RefusesNumbersThatDoNotCountUp) {
    EXPECT_EQ(Refusal("2: a\n"), "texts.txt:1: text 2 stands where text 1 belongs");
    EXPECT_EQ(Refusal("1: a\n3: c\n"), "texts.txt:2: text 3 stands where text 2 belongs");
    EXPECT_EQ(Refusal("1: a\n1: a\n"), "texts.txt:2: text 1 stands where text 2 belongs");
}

TEST(PackTexts, RefusesWhatSixteenBitsCannotCount) {
    EXPECT_EQ(Refusal("1: " + std::string(32767, 'a')), "packed");
    EXPECT_EQ(Refusal("1: " + std::string(32768, 'a')), "texts.txt:1: the text has 32768 characters, at most 32767 fit");
    std::string source;
    for (int number = 1; number <= 32768; ++number) source += std::to_string(number) + ": a\n";
    EXPECT_EQ(Refusal(source), "texts.txt:32768: the file holds at most 32767 texts");
}

}  // namespace
