#include "text/windows1250.h"

#include <gtest/gtest.h>

#include "text/characters.h"

namespace {

// What iconv makes of the codes from 128 on, sixteen a line; a dot where it knows no character.
constexpr std::string_view UpperHalf =
    "€.‚.„…†‡.‰Š‹ŚŤŽŹ"
    ".‘’“”•–—.™š›śťžź"
    "\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż"
    "°±˛ł´µ¶·¸ąş»Ľ˝ľż"
    "ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎ"
    "ĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
    "ŕáâăäĺćçčéęëěíîď"
    "đńňóôőö÷řůúűüýţ˙";

TEST(Windows1250, ReadsEveryCodeAndWritesItBack) {
    std::string_view expected = UpperHalf;
    for (int code = 0; code < 256; ++code) {
        const char32_t known = code < 128 ? static_cast<char32_t>(code) : text::TakeCharacter(expected);
        const char32_t character = text::FromWindows1250(static_cast<std::uint8_t>(code));
        EXPECT_EQ(character, known == U'.' && code >= 128 ? static_cast<char32_t>(code) : known) << "code " << code;
        EXPECT_EQ(text::ToWindows1250(character), code);
    }
    EXPECT_TRUE(expected.empty());
}

TEST(Windows1250, ReplacesEachForeignCharacterByOneQuestionMark) {
    EXPECT_EQ(text::ReplaceForeignCharacters("Žluťoučký „kůň“ – 5 €…"), "Žluťoučký „kůň“ – 5 €…");
    EXPECT_EQ(text::ReplaceForeignCharacters("ñ☀😀a\u00A0ÿ\u0080"), "???a\u00A0??");
    EXPECT_EQ(text::ReplaceForeignCharacters("a\xC4"), "a?");
}

}  // namespace
