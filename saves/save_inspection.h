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

// Finds what loading the file under that name would find. Neither throws nor waits.
Inspection InspectSave(std::span<const std::uint8_t> file);
