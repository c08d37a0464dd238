// Counting and cutting UTF-8 strings by characters, and folding the case of commands, which are ASCII.
// A byte that is not valid UTF-8 counts as one character (U+FFFD).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace text {

std::size_t CharCount(std::string_view utf8);

// Takes the first character off a string that is not empty.
char32_t TakeCharacter(std::string_view& utf8);

void AppendCharacter(std::string& utf8, char32_t character);

// Without its first `count` characters; empty when it has no more than that.
std::string_view DropChars(std::string_view utf8, std::size_t count);

// The first or last `count` characters; the whole string when it has no more than that.
std::string_view FirstChars(std::string_view utf8, std::size_t count);
std::string_view LastChars(std::string_view utf8, std::size_t count);

// Without its last character; an empty string stays empty.
std::string_view DropLastChar(std::string_view utf8);

std::string LowerAscii(std::string_view utf8);
std::string UpperAscii(std::string_view utf8);

}  // namespace text
