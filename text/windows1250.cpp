#include "text/windows1250.h"

#include <algorithm>
#include <array>

#include "text/characters.h"

namespace text {

namespace {

constexpr std::uint8_t FirstTableCode = 0x80;  // below it the code page is ASCII

// Sixteen codes a line.
// clang-format off
constexpr auto UpperHalf = std::to_array<char16_t>({
    u'€', u'\x81', u'‚', u'\x83', u'„', u'…', u'†', u'‡', u'\x88', u'‰', u'Š', u'‹', u'Ś', u'Ť', u'Ž', u'Ź',
    u'\x90', u'‘', u'’', u'“', u'”', u'•', u'–', u'—', u'\x98', u'™', u'š', u'›', u'ś', u'ť', u'ž', u'ź',
    u'\xA0', u'ˇ', u'˘', u'Ł', u'¤', u'Ą', u'¦', u'§', u'¨', u'©', u'Ş', u'«', u'¬', u'\xAD', u'®', u'Ż',
    u'°', u'±', u'˛', u'ł', u'´', u'µ', u'¶', u'·', u'¸', u'ą', u'ş', u'»', u'Ľ', u'˝', u'ľ', u'ż',
    u'Ŕ', u'Á', u'Â', u'Ă', u'Ä', u'Ĺ', u'Ć', u'Ç', u'Č', u'É', u'Ę', u'Ë', u'Ě', u'Í', u'Î', u'Ď',
    u'Đ', u'Ń', u'Ň', u'Ó', u'Ô', u'Ő', u'Ö', u'×', u'Ř', u'Ů', u'Ú', u'Ű', u'Ü', u'Ý', u'Ţ', u'ß',
    u'ŕ', u'á', u'â', u'ă', u'ä', u'ĺ', u'ć', u'ç', u'č', u'é', u'ę', u'ë', u'ě', u'í', u'î', u'ď',
    u'đ', u'ń', u'ň', u'ó', u'ô', u'ő', u'ö', u'÷', u'ř', u'ů', u'ú', u'ű', u'ü', u'ý', u'ţ', u'˙',
});
// clang-format on
static_assert(UpperHalf.size() == 128);

}  // namespace

std::optional<std::uint8_t> ToWindows1250(char32_t character) {
    if (character < FirstTableCode) return static_cast<std::uint8_t>(character);
    const auto found = std::ranges::find(UpperHalf, character);
    if (found == UpperHalf.end()) return std::nullopt;
    return static_cast<std::uint8_t>(FirstTableCode + (found - UpperHalf.begin()));
}

char32_t FromWindows1250(std::uint8_t code) {
    return code < FirstTableCode ? char32_t{code} : char32_t{UpperHalf[code - FirstTableCode]};
}

std::string ReplaceForeignCharacters(std::string_view utf8) {
    std::string result;
    result.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t character = TakeCharacter(utf8);
        AppendCharacter(result, ToWindows1250(character) ? character : U'?');
    }
    return result;
}

}  // namespace text
