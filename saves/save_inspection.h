// Judges a file that comes from elsewhere before it is put among the saved games.
#pragma once

#include <cstdint>
#include <span>
#include <string>

struct Inspection {
    enum class Finding { Sound, Damaged, TooLong, NameRefused };  // by the System Panel, so nobody could load it
    Finding Found;
    std::string Name;  // under which it was saved and must be put; empty when it cannot be read
};

// Judges as a load under that name would. Neither throws nor waits.
Inspection InspectSave(std::span<const std::uint8_t> file);
