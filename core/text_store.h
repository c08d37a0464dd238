// The story texts, decoded once at the start and kept in memory as UTF-8. They are addressed by number, from 1.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/game_files.h"

using TextNumber = std::int16_t;

constexpr TextNumber LastText = 272;  // the highest number that the story tells

class TextStore {
public:
    // Throws GameError when the packed texts are damaged or fewer than the story tells.
    static TextStore Decode(std::span<const std::uint8_t> packed);

    // Nothing for a number that no text has.
    std::optional<std::string_view> Text(TextNumber number) const;

private:
    std::vector<std::string> texts;
};

// Reads data/texs.dat of the program folder. Throws GameError when it is missing or damaged.
TextStore PrepareTextStore(const std::filesystem::path& appPath);
