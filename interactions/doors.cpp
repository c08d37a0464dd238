#include "interactions/doors.h"

namespace {

using enum Item;
using enum Hinge;
using State = GameState;
using Exits = SectorRecord;

constexpr std::string_view OpenedLab = "Otevřel jsi dveře od laboratoře...", ClosedLab = "Zavřel jsi dveře od laboratoře...";
constexpr std::string_view OpenedGuest = "Otevřel jsi dveře od kajuty...", ClosedGuest = "Zavřel jsi dveře od kajuty...";
constexpr std::string_view OpenedCaptain = "Otevřel jsi dveře do kapitánovy kajuty...",
                           ClosedCaptain = "Zavřel jsi dveře do kapitánovy kajuty...";
constexpr std::string_view OpenedOffice = "Otevřel jsi dveře do kanceláře...", ClosedOffice = "Zavřel jsi dveře do kanceláře...";
constexpr std::string_view OpenedWire = "Otevřel jsi drátěné dveře do skladu...", ClosedWire = "Zavřel jsi drátěné dveře od skladu...";
constexpr std::string_view ClosedCabin = "Zavřel jsi dveře od své kajuty...";

// A side a line.
// clang-format off
constexpr auto All = std::to_array<Door>({
    {&State::CabinDoorOpen, &State::CabinDoorUnlocked, FallsShut, {{
        {CabinDoorInside, sector::Cabin, &Exits::North, "Otevřel jsi dveře od své kajuty...", ClosedCabin},
        {CabinDoorOutside, sector::Corridor, &Exits::South, "Otevřel jsi dveře do své kajuty...", ClosedCabin}}}},
    {&State::BathroomDoorOpen, nullptr, Plain, {{
        {BathroomDoorOutside, sector::Cabin, &Exits::South, "Otevřel jsi dveře do koupelny...", "Zavřel jsi dveře do koupelny...",
         "Dveře do koupelny jsou již otevřené!", "Dveře do koupelny jsou již zavřené!"},
        {BathroomDoorInside, sector::Bathroom, &Exits::North, "Otevřel jsi dveře do kajuty...", "Zavřel jsi dveře do kajuty...",
         "Dveře do kajuty jsou již otevřené!", "Dveře do kajuty jsou již zavřené!"}}}},
    {&State::KeypadDoorOpen, &State::KeypadDoorUnlocked, FallsShut, {{
        {KeypadDoorOutside, sector::LabCorridor, &Exits::East, DoorOpened, DoorClosed},
        {KeypadDoorInside, sector::InnerRoom, &Exits::West, DoorOpened, DoorClosed}}}},
    {&State::LabDoorOpen, nullptr, FallsShut, {{
        {LabDoorOutside, sector::LabCorridor, &Exits::West, OpenedLab, ClosedLab},
        {LabDoorInside, sector::Laboratory, &Exits::East, OpenedLab, ClosedLab}}}},
    {&State::SecondCabinDoorOpen, nullptr, FallsShut, {{
        {GuestCabinDoorOutside, sector::WestEnd, &Exits::South, OpenedGuest, ClosedGuest},
        {GuestCabinDoorInside, sector::GuestCabin, &Exits::North, OpenedGuest, ClosedGuest}}}},
    {&State::CaptainDoorOpen, nullptr, FallsShut, {{
        {CaptainDoorOutside, sector::EastEnd, &Exits::North, OpenedCaptain, ClosedCaptain},
        {CaptainDoorInside, sector::CaptainsCabin, &Exits::South, OpenedCaptain, ClosedCaptain}}}},
    {&State::OfficeDoorOpen, &State::OfficeDoorUnlocked, FallsShut, {{
        {OfficeDoorOutside, sector::EngineRoom, &Exits::South, OpenedOffice, ClosedOffice},
        {OfficeDoorInside, sector::Office, &Exits::North, OpenedOffice, ClosedOffice}}}},
    {&State::WireDoorOpen, &State::WireDoorUnlocked, Plain, {{
        {WireDoorOutside, sector::Store, &Exits::South, OpenedWire, ClosedWire},
        {WireDoorInside, sector::StoreBackRoom, &Exits::North, OpenedWire, ClosedWire}}}},
});
// clang-format on

}  // namespace

std::span<const Door> Doors() {
    return All;
}
