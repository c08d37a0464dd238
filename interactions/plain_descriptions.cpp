#include "interactions/plain_descriptions.h"

#include <algorithm>
#include <array>

namespace {

using enum Item;

struct Description {
    Item Examined;
    TextNumber Text;
};

constexpr auto Descriptions = std::to_array<Description>({
    {CabinTerminal, 18},
    {CabinDoorInside, 19},
    {BathroomDoorOutside, 23},
    {CabinWindow, 24},
    {Tools, 26},
    {ScrapOfPaper, 27},
    {CabinKey, 28},
    {Shower, 29},
    {BathroomDoorInside, 30},
    {CabinDoorOutside, 33},
    {Technician, 159},
    {SecurityCard, 162},
    {KeypadDoorOutside, 35},
    {LabDoorOutside, 34},
    {Keypad, 36},
    {DiningHallDoorOutside, 73},
    {GuestCabinDoorOutside, 74},
    {EngineRoomEntrance, 75},
    {Guard, 76},
    {CaptainDoorOutside, 63},
    {StoreEntrance, 64},
    {HangarEntrance, 65},
    {Scientist, 37},
    {LabTerminal, 49},
    {SampleVega, 233},
    {OldDiskette, 230},
    {LabDoorInside, 51},
    {DataCable, 52},
    {LabTables, 53},
    {LabApparatus, 54},
    {KeypadDoorInside, 185},
    {InnerRoomTerminal, 187},
    {InnerRoomWindow, 188},
    {Newspaper, 86},
    {GuestCabinDoorInside, 87},
    {GuestCabinWindow, 88},
    {Computer, 89},
    {Veteran, 193},
    {ServingHatch, 83},
    {DiningHallDoorInside, 84},
    {Authorisation, 146},
    {Crowd, 85},
    {Panel, 154},
    {Core, 155},
    {OfficeDoorOutside, 156},
    {Technicians, 157},
    {Fingernail, 238},
    {ManInDarkGlasses, 139},
    {Teleport, 158},
    {OfficeTable, 169},
    {OfficeWindow, 170},
    {OfficeMap, 171},
    {Plans, 166},
    {OfficeDoorInside, 167},
    {Captain, 90},
    {Diskette, 219},
    {CaptainDoorInside, 92},
    {CaptainWindow, 94},
    {Statue, 95},
    {Picture, 96},
    {CaptainTerminal, 97},
    {Worker, 101},
    {Manual, 131},
    {HangarGate, 103},
    {HangarGuards, 104},
    {Module, 106},
    {StoreCounter, 66},
    {Attendant, 67},
    {WireDoorOutside, 68},
    {Coil, 69},
    {FloppyDrive, 222},
    {Tester, 150},
    {WireDoorInside, 122},
    {IonDispenser, 126},
    {Container, 205},
    {Detonator, 253},
    {SampleJunett, 234},
    {SampleDeyopel, 235},
    {SampleDebadon, 236},
    {Towel, 267},
    {SlipOfPaper, 268},
    {Pencil, 269},
    {EmptyTestTube, 270},
    {MetalRod, 271},
    {HeatSensor, 272},
});

}  // namespace

std::optional<TextNumber> PlainDescription(Item item) {
    const auto row = std::ranges::find(Descriptions, item, &Description::Examined);
    return row == Descriptions.end() ? std::nullopt : std::optional(row->Text);
}
