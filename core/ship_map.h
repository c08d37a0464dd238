// The ship as a grid of 17 sectors: where each one lies, which exits are open and what lies there. The bare map prints nothing.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "core/items.h"

// True and False as a saved game stores them; a loaded game may hold any other value.
using Boolean = std::int16_t;
constexpr Boolean True = -1;
constexpr Boolean False = 0;

struct SectorRecord {
    std::int16_t X = 0;  // grows towards the east
    std::int16_t Y = 0;  // grows towards the south
    std::vector<std::int16_t> Items;
    std::int16_t TextNo = 0;  // of the description
    Boolean North = False;
    Boolean South = False;
    Boolean West = False;
    Boolean East = False;

    bool operator==(const SectorRecord&) const = default;
};

enum class Direction : std::int16_t { North, South, East, West, None };

// A direction with its Czech name, the exit that must be open for it, and the step on the map.
struct Way {
    Direction Towards;
    std::string_view Name;
    Boolean SectorRecord::*Exit;
    std::int16_t X, Y;
};

// In the order in which directions are offered.
constexpr auto Ways = std::to_array<Way>({
    {Direction::North, "sever", &SectorRecord::North, 0, -1},
    {Direction::South, "jih", &SectorRecord::South, 0, 1},
    {Direction::East, "východ", &SectorRecord::East, 1, 0},
    {Direction::West, "západ", &SectorRecord::West, -1, 0},
});

// Not for Direction::None.
constexpr const Way& WayTo(Direction direction) {
    return Ways[static_cast<std::size_t>(direction)];
}

// The directions whose exits are open, in the order in which they are offered.
std::vector<Direction> OpenWays(const SectorRecord& sector);

namespace sector {
enum : std::int16_t {
    None,
    Cabin,
    Bathroom,
    Corridor,
    Crossing,
    LabCorridor,
    Laboratory,
    InnerRoom,
    CaptainsCabin,
    EastEnd,
    Hangar,
    Store,
    StoreBackRoom,
    DiningHall,
    EngineRoom,
    WestEnd,
    GuestCabin,
    Office,
};
}  // namespace sector

constexpr std::int16_t LastSector = sector::Office;

// Index 0 belongs to no sector and stays empty.
class SectorTable {
public:
    SectorRecord& operator[](std::int16_t sector) { return records[static_cast<std::size_t>(sector)]; }
    const SectorRecord& operator[](std::int16_t sector) const { return records[static_cast<std::size_t>(sector)]; }
    const std::array<SectorRecord, LastSector + 1>& All() const { return records; }

    bool operator==(const SectorTable&) const = default;

private:
    std::array<SectorRecord, LastSector + 1> records{};
};

void BuildSectors(SectorTable& sectors);

// 0 when no sector lies there.
std::int16_t FindSector(const SectorTable& sectors, std::int16_t x, std::int16_t y);

// A removed item's place is taken by the last one; an item that is not there leaves the list as it is.
void RemoveItem(SectorRecord& sector, Item item);

bool HoldsItem(const SectorRecord& sector, Item item);
