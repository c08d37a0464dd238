// Packs the story from its readable source, one "NUMBER: TEXT" a line, into the words of data/texs.dat.
// Empty lines and lines that begin with # are for the writers and left out. The numbers begin with 1 and skip none.
// Throws PackingError with "NAME:LINE: reason" for the first line that the file's format cannot hold.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace tools {

class PackingError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Every text hides behind a key. With keys of their own, no letter looks the same in two texts; with one key for all of them, a server's
// compression makes the file half as large.
enum class Keys { Own, Shared };

// The 16-bit words of the packed file. The same source always gives the same words.
std::vector<std::uint16_t> PackTexts(std::string_view source, std::string_view name, Keys keys = Keys::Own);

}  // namespace tools
