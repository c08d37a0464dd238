#include "text/characters.h"

#include <algorithm>
#include <cstdint>

namespace text {

namespace {

constexpr char32_t Malformed = U'\xFFFD';

struct Decoded {
    char32_t character;
    std::size_t bytes;
};

// By the number of bytes, the smallest character that needs so many; a smaller one in as many bytes is malformed.
constexpr char32_t SmallestOfLength[] = {0, 0, 0x80, 0x800, 0x10000};

std::size_t LengthByLeadByte(std::uint8_t lead) {
    if (lead < 0x80) return 1;
    if ((lead & 0xE0) == 0xC0) return 2;
    if ((lead & 0xF0) == 0xE0) return 3;
    if ((lead & 0xF8) == 0xF0) return 4;
    return 0;
}

Decoded DecodeFirst(std::string_view utf8) {
    const auto lead = static_cast<std::uint8_t>(utf8.front());
    const std::size_t length = LengthByLeadByte(lead);
    if (length == 1) return {lead, 1};
    if (length == 0 || utf8.size() < length) return {Malformed, 1};

    char32_t character = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<std::uint8_t>(utf8[i]);
        if ((byte & 0xC0) != 0x80) return {Malformed, 1};
        character = character << 6 | (byte & 0x3F);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < SmallestOfLength[length] || character > 0x10FFFF || surrogate) return {Malformed, 1};
    return {character, length};
}

}  // namespace

std::size_t CharCount(std::string_view utf8) {
    std::size_t count = 0;
    for (; !utf8.empty(); ++count) TakeCharacter(utf8);
    return count;
}

char32_t TakeCharacter(std::string_view& utf8) {
    const auto [character, bytes] = DecodeFirst(utf8);
    utf8.remove_prefix(bytes);
    return character;
}

void AppendCharacter(std::string& utf8, char32_t character) {
    const auto put = [&](char32_t byte) { utf8.push_back(static_cast<char>(byte)); };
    const auto putTail = [&](int shift) { put(0x80 | (character >> shift & 0x3F)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | character >> 6);
        putTail(0);
    } else if (character < 0x10000) {
        put(0xE0 | character >> 12);
        putTail(6);
        putTail(0);
    } else {
        put(0xF0 | character >> 18);
        putTail(12);
        putTail(6);
        putTail(0);
    }
}

std::string_view DropChars(std::string_view utf8, std::size_t count) {
    for (; count > 0 && !utf8.empty(); --count) TakeCharacter(utf8);
    return utf8;
}

std::string_view FirstChars(std::string_view utf8, std::size_t count) {
    return utf8.substr(0, utf8.size() - DropChars(utf8, count).size());
}

std::string_view LastChars(std::string_view utf8, std::size_t count) {
    const std::size_t length = CharCount(utf8);
    return DropChars(utf8, length - std::min(count, length));
}

std::string_view DropLastChar(std::string_view utf8) {
    return utf8.substr(0, utf8.size() - LastChars(utf8, 1).size());
}

std::string LowerAscii(std::string_view utf8) {
    std::string result(utf8);
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

std::string UpperAscii(std::string_view utf8) {
    std::string result(utf8);
    for (char& c : result) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return result;
}

}  // namespace text
