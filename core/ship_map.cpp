#include "core/ship_map.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace {

using enum Item;

struct StartingSector {
    std::int16_t X, Y;
    std::string_view Exits;  // the initials of the directions that are open at the start
    std::initializer_list<Item> Items;
};

Boolean HasExit(const StartingSector& start, char initial) {
    return start.Exits.find(initial) == std::string_view::npos ? False : True;
}

}  // namespace

void BuildSectors(SectorTable& sectors) {
    const std::initializer_list<StartingSector> ship = {
        {5, 3, "", {CabinTerminal, CabinDoorInside, BathroomDoorOutside, CabinWardrobe, CabinWindow, Tools}},
        {5, 4, "N", {CabinKey, Shower, Towel, BathroomDoorInside, BathroomCupboard}},
        {5, 2, "WE", {CabinDoorOutside}},
        {4, 2, "NWE", {}},
        {4, 1, "S", {KeypadDoorOutside, LabDoorOutside, Keypad, SlipOfPaper}},
        {3,
         1,
         "",
         {Scientist, Replicator, PlasmaSamples, WasteBin, LabDoorInside, DataCable, LabTables, LabApparatus, EmptyTestTube, LabTerminal}},
        {5, 1, "", {KeypadDoorInside, Briefcase, InnerRoomTerminal, InnerRoomWindow, InnerRoomWardrobe}},
        {6, 1, "", {Captain, CaptainWardrobe, CaptainDoorInside, CaptainDesk, CaptainWindow, Statue, Picture, CaptainTerminal}},
        {6, 2, "SWE", {CaptainDoorOutside, StoreEntrance, HangarEntrance}},
        {7, 2, "W", {Worker, HangarTerminal, HangarGate, HangarGuards, HangarPersonnel, Module, Cart}},
        {6, 3, "N", {StoreCounter, Attendant, MetalRod, WireDoorOutside}},
        {6, 4, "N", {WireDoorInside, Arsenal, OldDoor, BrokenTerminal}},
        {2, 1, "S", {ServingHatch, DiningHallDoorInside, Crowd}},
        {1, 2, "E", {Panel, Core, HeatSensor, Technicians, Teleport, OfficeDoorOutside}},
        {2, 2, "NE", {DiningHallDoorOutside, GuestCabinDoorOutside, EngineRoomEntrance, Guard}},
        {2, 3, "", {Newspaper, GuestCabinDoorInside, GuestCabinWindow, Computer}},
        {1, 3, "", {OfficeWardrobe, Plans, OfficeDoorInside, OfficeTable, OfficeWindow, OfficeMap, Pencil}},
    };
    std::int16_t number = sector::Cabin;
    for (const StartingSector& start : ship) {
        SectorRecord& record = sectors[number];
        record = {.X = start.X,
                  .Y = start.Y,
                  .Items = {},
                  .TextNo = number,
                  .North = HasExit(start, 'N'),
                  .South = HasExit(start, 'S'),
                  .West = HasExit(start, 'W'),
                  .East = HasExit(start, 'E')};
        for (const Item item : start.Items) record.Items.push_back(NumberOf(item));
        ++number;
    }
}

std::vector<Direction> OpenWays(const SectorRecord& sector) {
    std::vector<Direction> open;
    for (const Way& way : Ways) {
        if (sector.*way.Exit == True) open.push_back(way.Towards);
    }
    return open;
}

std::int16_t FindSector(const SectorTable& sectors, std::int16_t x, std::int16_t y) {
    for (std::int16_t number = sector::Cabin; number <= LastSector; ++number) {
        if (sectors[number].X == x && sectors[number].Y == y) return number;
    }
    return sector::None;
}

void RemoveItem(SectorRecord& sector, Item item) {
    const auto found = std::ranges::find(sector.Items, NumberOf(item));
    if (found == sector.Items.end()) return;
    *found = sector.Items.back();
    sector.Items.pop_back();
}

bool HoldsItem(const SectorRecord& sector, Item item) {
    return std::ranges::find(sector.Items, NumberOf(item)) != sector.Items.end();
}
