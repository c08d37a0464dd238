// Reading the game's files: the texts and the saved games are both made of 16-bit little-endian words.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

// Throws GameError with the given Czech sentence when the file cannot be read. What comes after `enough` bytes may stay unread.
Bytes ReadFile(const std::filesystem::path& path, const std::string& unreadable, std::size_t enough = SIZE_MAX);

class WordReader {
public:
    // Whatever turns out to be wrong with the file is thrown as GameError with the given Czech sentence.
    WordReader(std::span<const std::uint8_t> file, std::string damaged) : rest(file), sentence(std::move(damaged)) {}

    std::int16_t Take();
    std::size_t TakeLength();  // a count of words that follow; refuses one that the rest of the file cannot hold

    // Takes `length` characters, each stored as its code in Windows-1250 plus the key.
    std::string TakeText(std::size_t length, std::int16_t key);

    // Says that the file is damaged.
    [[noreturn]] void Refuse() const;

private:
    std::span<const std::uint8_t> rest;
    std::string sentence;
};
