#include "core/items.h"

#include <array>

namespace {

using enum Item;

enum Weight { Fixed, Portable };

struct Entry {
    Item Which;
    std::string_view Name;
    Weight CanBe = Fixed;
};

constexpr auto Catalogue = std::to_array<Entry>({
    {CabinTerminal, "terminál"},
    {CabinDoorInside, "dveře"},
    {BathroomDoorOutside, "dveře do koupelny"},
    {CabinWardrobe, "skříň"},
    {CabinWindow, "okno"},
    {Tools, "nářadí", Portable},
    {Uniform, "uniformu"},
    {ScrapOfPaper, "papírek", Portable},
    {CabinKey, "klíč od kajuty", Portable},
    {Shower, "sprchový kout"},
    {BathroomDoorInside, "dveře do kajuty"},
    {BathroomCupboard, "skříňku"},
    {CabinDoorOutside, "dveře do kajuty"},
    {Technician, "technika"},
    {SecurityCard, "bezpečnostní kartu", Portable},
    {KeypadDoorOutside, "dveře"},
    {LabDoorOutside, "dveře do laboratoře"},
    {Keypad, "číselník"},
    {DiningHallDoorOutside, "dveře do jídelny"},
    {GuestCabinDoorOutside, "dveře"},
    {EngineRoomEntrance, "vchod do strojovny"},
    {Guard, "strážného"},
    {CaptainDoorOutside, "dveře do kajuty kapitána"},
    {StoreEntrance, "vchod do skladu"},
    {HangarEntrance, "vchod do hangáru"},
    {Scientist, "vědce"},
    {Replicator, "replikátor"},
    {PlasmaSamples, "vzorky krevní plazmy"},
    {LabTerminal, "terminál"},
    {SampleVega, "vzorek Arnon Vega", Portable},
    {WasteBin, "koš"},
    {OldDiskette, "starou disketu", Portable},
    {LabDoorInside, "dveře"},
    {DataCable, "datový kabel", Portable},
    {LabTables, "stoly"},
    {LabApparatus, "aparaturu"},
    {KeypadDoorInside, "dveře"},
    {Briefcase, "kufřík", Portable},
    {InnerRoomTerminal, "terminál"},
    {InnerRoomWindow, "okno"},
    {InnerRoomWardrobe, "skříň"},
    {Newspaper, "noviny", Portable},
    {GuestCabinDoorInside, "dveře"},
    {GuestCabinWindow, "okno"},
    {Computer, "počítač"},
    {MaintenanceMan, "udržbáře"},
    {Veteran, "veterána"},
    {ServingHatch, "výdejnu"},
    {DiningHallDoorInside, "dveře"},
    {Authorisation, "pověření", Portable},
    {Crowd, "dav"},
    {Panel, "panel"},
    {SeismicBomb, "seismickou bombu"},
    {Core, "jádro"},
    {OfficeDoorOutside, "dveře"},
    {Technicians, "techniky"},
    {Fingernail, "utržený nehet", Portable},
    {ManInDarkGlasses, "muže v černých brýlích"},
    {Teleport, "teleport"},
    {OfficeTable, "stůl"},
    {OfficeWindow, "okno"},
    {OfficeMap, "mapu"},
    {OfficeWardrobe, "skříň"},
    {Plans, "plány", Portable},
    {OfficeDoorInside, "dveře"},
    {OperatingTerminal, "operační terminál", Portable},
    {Captain, "kapitána"},
    {CaptainWardrobe, "skříň"},
    {Diskette, "disketu", Portable},
    {CaptainDoorInside, "dveře"},
    {CaptainDesk, "stůl"},
    {CaptainWindow, "okno"},
    {Documents, "dokumenty", Portable},
    {Documents2, "dokumenty II", Portable},
    {Statue, "sochu"},
    {Picture, "obraz"},
    {CaptainTerminal, "terminál"},
    {Worker, "pracovníka"},
    {Suspect, "podezřelého"},
    {HangarTerminal, "terminál"},
    {Manual, "manuál", Portable},
    {HangarGate, "bránu"},
    {HangarGuards, "stráže"},
    {HangarPersonnel, "personál"},
    {Module, "modul"},
    {Message, "zprávu", Portable},
    {Cart, "vozík", Portable},
    {DeadVega, "mrtvého Arnona Vegu"},
    {StoreCounter, "pult"},
    {Attendant, "výdejčího"},
    {WireDoorOutside, "drátěné dveře"},
    {Coil, "cívku", Portable},
    {FloppyDrive, "disketovou mechaniku", Portable},
    {Tester, "pistolovou zkoušečku", Portable},
    {WireDoorInside, "drátěné dveře"},
    {Arsenal, "arsenál"},
    {OldDoor, "staré dveře"},
    {BrokenTerminal, "rozbitý terminál"},
    {IonDispenser, "iontový dávkovač", Portable},
    {Container, "kontejner"},
    {Detonator, "detonátor", Portable},
    {SampleJunett, "vzorek Raghan Junett", Portable},
    {SampleDeyopel, "vzorek Francois Deyopel", Portable},
    {SampleDebadon, "vzorek Kilmut Debadon", Portable},
    {Towel, "ručník", Portable},
    {SlipOfPaper, "papír", Portable},
    {Pencil, "tužku", Portable},
    {EmptyTestTube, "prázdnou zkumavku", Portable},
    {MetalRod, "kovovou tyč", Portable},
    {HeatSensor, "tepelný snímač", Portable},
});

static_assert(Catalogue.size() == NumberOf(LastItem));
static_assert([] {
    for (std::size_t i = 0; i < Catalogue.size(); ++i) {
        if (static_cast<std::size_t>(Catalogue[i].Which) != i + 1) return false;
    }
    return true;
}());

const Entry* Find(Item item) {
    const std::int16_t number = NumberOf(item);
    return number >= 1 && number <= NumberOf(LastItem) ? &Catalogue[static_cast<std::size_t>(number - 1)] : nullptr;
}

}  // namespace

std::string_view ItemName(Item item) {
    if (item == Self) return "sebe";
    const Entry* entry = Find(item);
    return entry == nullptr ? std::string_view() : entry->Name;
}

bool IsPortable(Item item) {
    const Entry* entry = Find(item);
    return entry != nullptr && entry->CanBe == Portable;
}
