#include "tools/pack_texts.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdio>
#include <string>

#include "text/characters.h"
#include "text/windows1250.h"

namespace tools {

namespace {

constexpr std::size_t MostWords = 32767;  // counts and lengths are signed 16-bit numbers
constexpr char32_t FirstPrintable = U' ';
constexpr char32_t Delete = 0x7F;
constexpr char32_t NotUtf8 = 0xFFFD;

std::string Describe(char32_t character) {
    if (character == NotUtf8) return "a byte that is not UTF-8";
    std::string described;
    if (character >= FirstPrintable && character != Delete) {
        text::AppendCharacter(described, character);
        described = "'" + described + "' ";
    }
    char code[16];
    std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(character));
    return described + code;
}

std::vector<std::uint8_t> Encode(std::string_view utf8) {
    std::vector<std::uint8_t> codes;
    for (std::size_t column = 1; !utf8.empty(); ++column) {
        const char32_t character = text::TakeCharacter(utf8);
        const auto where = " at character " + std::to_string(column) + " of the text";
        if (character < FirstPrintable || character == Delete) throw PackingError("control character " + Describe(character) + where);
        const auto code = text::ToWindows1250(character);
        if (!code) throw PackingError(Describe(character) + " is not in Windows-1250," + where);
        codes.push_back(*code);
    }
    return codes;
}

// Any key serves; neighbours get keys far apart.
std::uint16_t LineKey(std::size_t number, Keys keys) {
    return static_cast<std::uint16_t>((keys == Keys::Own ? number : 1) * 40503U + 9973U);
}

std::size_t LeadingNumber(std::string_view& line) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    const bool wellFormed = error == std::errc{} && (line == ":" || line.starts_with(": "));
    if (!wellFormed) throw PackingError("expected \"NUMBER: TEXT\", a comment or an empty line");
    line.remove_prefix(std::min<std::size_t>(line.size(), 2));
    return number;
}

void PackLine(std::string_view line, Keys keys, std::vector<std::uint16_t>& words) {
    const std::size_t expected = words.front() + std::size_t{1};
    const std::size_t number = LeadingNumber(line);
    if (number != expected) {
        throw PackingError("text " + std::to_string(number) + " stands where text " + std::to_string(expected) + " belongs");
    }
    if (number > MostWords) throw PackingError("the file holds at most " + std::to_string(MostWords) + " texts");

    const auto codes = Encode(line);
    if (codes.size() > MostWords) {
        throw PackingError("the text has " + std::to_string(codes.size()) + " characters, at most " + std::to_string(MostWords) + " fit");
    }
    const std::uint16_t key = LineKey(number, keys);
    words.front() = static_cast<std::uint16_t>(number);
    words.push_back(static_cast<std::uint16_t>(codes.size()));
    words.push_back(key);
    for (const std::uint8_t code : codes) words.push_back(static_cast<std::uint16_t>(code + key));
}

}  // namespace

std::vector<std::uint16_t> PackTexts(std::string_view source, std::string_view name, Keys keys) {
    std::vector<std::uint16_t> words{0};
    for (std::size_t lineNumber = 1; !source.empty(); ++lineNumber) {
        const std::string_view line = source.substr(0, source.find('\n'));
        source.remove_prefix(std::min(source.size(), line.size() + 1));
        if (line.empty() || line.starts_with('#')) continue;
        try {
            PackLine(line, keys, words);
        } catch (const PackingError& error) {
            throw PackingError(std::string(name) + ":" + std::to_string(lineNumber) + ": " + error.what());
        }
    }
    return words;
}

}  // namespace tools
