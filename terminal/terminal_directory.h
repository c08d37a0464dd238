// The ship's five terminals: the thing in its room, the serial number that the others know it by, and the route of its signal.
// A terminal's place in this directory is its index in TerminalMailbox.
#pragma once

#include <optional>
#include <string_view>

#include "core/game_state.h"

struct TerminalEntry {
    Item Terminal;
    std::string_view SerialNumber;
    std::string_view Route;
};

constexpr std::size_t LabTerminalIndex = 1;  // the only one with DNA equipment

// 0 for an item that is no terminal.
std::size_t TerminalIndexOf(Item item);

const TerminalEntry& TerminalAt(std::size_t index);

// By the serial number in any case of letters; nothing when the ship has none of that number.
std::optional<std::size_t> FindTerminal(std::string_view serialNumber);
