// Windows-1250, the code page of every file of the game. Inside the program all text is UTF-8.
// All 256 codes can be decoded and encoded again, because the five that the code page leaves unassigned stand for the control characters
// of the same value.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace text {

// The code of a character, nothing when the code page lacks it.
std::optional<std::uint8_t> ToWindows1250(char32_t character);

char32_t FromWindows1250(std::uint8_t code);

// Every character that the code page lacks, and every malformed byte, becomes "?".
std::string ReplaceForeignCharacters(std::string_view utf8);

}  // namespace text
