#include "terminal/terminal_directory.h"

#include <algorithm>
#include <array>

#include "text/characters.h"

namespace {

constexpr auto Directory = std::to_array<TerminalEntry>({
    {Item::CabinTerminal, "102-X12-1478", "102-X34-2597...102-X12-1478"},
    {Item::LabTerminal, "102-X34-2597", "102-X12-1478...102-X89-3156...102-X34-2597"},
    {Item::HangarTerminal, "102-X07-1001", "102-X34-2597...102-X94-5487...102-X07-1001"},
    {Item::CaptainTerminal, "102-X89-3156", "102-X34-2597...102-X12-1478...102-X89-3156"},
    {Item::InnerRoomTerminal, "102-X94-5487", "102-X89-3156...102-X12-1478...102-X07-1001...102-X94-5487"},
});
static_assert(Directory.size() == TerminalCount);
static_assert(Directory[LabTerminalIndex].Terminal == Item::LabTerminal);

}  // namespace

std::size_t TerminalIndexOf(Item item) {
    const auto entry = std::ranges::find(Directory, item, &TerminalEntry::Terminal);
    return entry == Directory.end() ? 0 : static_cast<std::size_t>(entry - Directory.begin());
}

const TerminalEntry& TerminalAt(std::size_t index) {
    return Directory[index];
}

std::optional<std::size_t> FindTerminal(std::string_view serialNumber) {
    const auto entry = std::ranges::find(Directory, text::UpperAscii(serialNumber), &TerminalEntry::SerialNumber);
    if (entry == Directory.end()) return std::nullopt;
    return static_cast<std::size_t>(entry - Directory.begin());
}
