#include "text/characters.h"

#include <gtest/gtest.h>

namespace {

TEST(Characters, AreCountedAndCutWhole) {
    EXPECT_EQ(text::CharCount("šálek 5 €"), 9);
    EXPECT_EQ(text::FirstChars("šálek", 2), "šá");
    EXPECT_EQ(text::DropChars("šálek", 2), "lek");
    EXPECT_EQ(text::LastChars("lžíce", 4), "žíce");
    EXPECT_EQ(text::DropLastChar("dveří"), "dveř");
}

TEST(Characters, MayBeFewerThanAskedFor) {
    EXPECT_EQ(text::FirstChars("ž", 2), "ž");
    EXPECT_EQ(text::LastChars("ž", 2), "ž");
    EXPECT_EQ(text::DropChars("ž", 2), "");
    EXPECT_EQ(text::DropLastChar(""), "");
}

// Overlong forms, surrogates, what lies beyond Unicode, lone and missing continuation bytes.
TEST(Characters, CountAMalformedByteAsOne) {
    EXPECT_EQ(text::CharCount("\xC0\xAF"), 2);
    EXPECT_EQ(text::CharCount("\xE0\x80\xAF"), 3);
    EXPECT_EQ(text::CharCount("\xED\xA0\x80"), 3);
    EXPECT_EQ(text::CharCount("\xF4\x90\x80\x80"), 4);
    EXPECT_EQ(text::CharCount("\xFF"), 1);
    EXPECT_EQ(text::CharCount("a\xC5z\x99"), 4);
    std::string_view cut = "\xE2\x82";
    EXPECT_EQ(text::TakeCharacter(cut), U'\xFFFD');
    EXPECT_EQ(cut, "\x82");
}

TEST(Characters, SurviveTakingApartAndPuttingTogether) {
    const std::string all = "a ž € 😀 \U0010FFFF";
    std::string again;
    for (std::string_view rest = all; !rest.empty();) text::AppendCharacter(again, text::TakeCharacter(rest));
    EXPECT_EQ(again, all);
}

TEST(Characters, FoldTheCaseOfAsciiAlone) {
    EXPECT_EQ(text::LowerAscii("PING Ž@[`{"), "ping Ž@[`{");
    EXPECT_EQ(text::UpperAscii("102-x12 ž@[`{"), "102-X12 ž@[`{");
}

}  // namespace
