#include "interactions/doors.h"

namespace {

using enum Item;
using State = GameState;
using Exits = SectorRecord;

constexpr std::string_view OpenedLab = "Otevřel jsi dveře od laboratoře...", ClosedLab = "Zavřel jsi dveře od laboratoře...";
constexpr std::string_view OpenedGuest = "Otevřel jsi dveře od kajuty...", ClosedGuest = "Zavřel jsi dveře od kajuty...";
constexpr std::string_view OpenedCaptain = "Otevřel jsi dveře do kapitánovy kajuty...",
                           ClosedCaptain = "Zavřel jsi dveře do kapitánovy kajuty...";
constexpr std::string_view OpenedOffice = "Otevřel jsi dveře do kanceláře...", ClosedOffice = "Zavřel jsi dveře do kanceláře...";
constexpr std::string_view OpenedWire = "Otevřel jsi drátěné dveře do skladu...", ClosedWire = "Zavřel jsi drátěné dveře od skladu...";
constexpr std::string_view ClosedCabin = "Zavřel jsi dveře od své kajuty...";

// clang-format off: a side a line
constexpr auto Sides = std::to_array<DoorSide>({
    {CabinDoorInside, &State::CabinDoorOpen, sector::Cabin, &Exits::North, &State::CabinDoorUnlocked, "Otevřel jsi dveře od své kajuty...",
     ClosedCabin},
    {CabinDoorOutside, &State::CabinDoorOpen, sector::Corridor, &Exits::South, &State::CabinDoorUnlocked,
     "Otevřel jsi dveře do své kajuty...", ClosedCabin},
    {BathroomDoorOutside, &State::BathroomDoorOpen, sector::Cabin, &Exits::South, nullptr, "Otevřel jsi dveře do koupelny...",
     "Zavřel jsi dveře do koupelny...", "Dveře do koupelny jsou již otevřené!", "Dveře do koupelny jsou již zavřené!"},
    {BathroomDoorInside, &State::BathroomDoorOpen, sector::Bathroom, &Exits::North, nullptr, "Otevřel jsi dveře do kajuty...",
     "Zavřel jsi dveře do kajuty...", "Dveře do kajuty jsou již otevřené!", "Dveře do kajuty jsou již zavřené!"},
    {KeypadDoorOutside, &State::KeypadDoorOpen, sector::LabCorridor, &Exits::East, &State::KeypadDoorUnlocked, DoorOpened, DoorClosed},
    {KeypadDoorInside, &State::KeypadDoorOpen, sector::InnerRoom, &Exits::West, &State::KeypadDoorUnlocked, DoorOpened, DoorClosed},
    {LabDoorOutside, &State::LabDoorOpen, sector::LabCorridor, &Exits::West, nullptr, OpenedLab, ClosedLab},
    {LabDoorInside, &State::LabDoorOpen, sector::Laboratory, &Exits::East, nullptr, OpenedLab, ClosedLab},
    {GuestCabinDoorOutside, &State::SecondCabinDoorOpen, sector::WestEnd, &Exits::South, nullptr, OpenedGuest, ClosedGuest},
    {GuestCabinDoorInside, &State::SecondCabinDoorOpen, sector::GuestCabin, &Exits::North, nullptr, OpenedGuest, ClosedGuest},
    {CaptainDoorOutside, &State::CaptainDoorOpen, sector::EastEnd, &Exits::North, nullptr, OpenedCaptain, ClosedCaptain},
    {CaptainDoorInside, &State::CaptainDoorOpen, sector::CaptainsCabin, &Exits::South, nullptr, OpenedCaptain, ClosedCaptain},
    {OfficeDoorOutside, &State::OfficeDoorOpen, sector::EngineRoom, &Exits::South, &State::OfficeDoorUnlocked, OpenedOffice, ClosedOffice},
    {OfficeDoorInside, &State::OfficeDoorOpen, sector::Office, &Exits::North, &State::OfficeDoorUnlocked, OpenedOffice, ClosedOffice},
    {WireDoorOutside, &State::WireDoorOpen, sector::Store, &Exits::South, &State::WireDoorUnlocked, OpenedWire, ClosedWire},
    {WireDoorInside, &State::WireDoorOpen, sector::StoreBackRoom, &Exits::North, &State::WireDoorUnlocked, OpenedWire, ClosedWire},
});
// clang-format on

}  // namespace

std::span<const DoorSide> DoorSides() {
    return Sides;
}
