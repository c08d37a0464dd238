// Judges a file that comes from elsewhere before it is put among the saved games.
#pragma once

#include <cstdint>
#include <span>
#include <string>

struct Inspection {
    // NameRefused: the System Panel takes no such name, so nobody could load the game.
    enum class Finding { Sound, Damaged, TooLong, NameRefused };
    Finding Found;
    std::string Name;  // under which the game was saved and must be put into the folder; empty when it cannot be read
};

// Whether the System Panel could load the file under the name that stands in it. Stricter than a load, which reads no further than it needs
// and so refuses no file for its length. Neither throws nor waits.
Inspection InspectSave(std::span<const std::uint8_t> file);
