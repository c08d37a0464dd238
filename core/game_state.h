// The whole state of a running game. Every value is 16 bits wide, as a saved game stores it.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "core/ship_map.h"

struct GameState {
    std::filesystem::path AppPath;  // the program folder
    std::int16_t PlayerX = 0;
    std::int16_t PlayerY = 0;
    std::array<std::int16_t, 5> Inventory{};  // the carried items stand first, then 0
    SectorTable Sectors{};
    std::int16_t CurrentSector = 0;  // 0 until the game proper begins
    Boolean TerminalLoggedIn = False;
    std::int16_t CommandVerb = 0;  // -1: none, as in the two below
    std::int16_t CommandObject = 0;
    std::int16_t CommandTarget = 0;
    std::int16_t GameStage = 0;
    std::array<std::int16_t, 5> TerminalMailbox{};
    Boolean GameOver = False;
    std::string DoorCode;  // empty: none

    // The story flags, in the order of a saved game.
    Boolean CabinDoorOpen = False;
    Boolean CabinDoorUnlocked = False;
    Boolean BathroomDoorOpen = False;
    Boolean CabinWardrobeOpen = False;
    Boolean CupboardOpen = False;
    Boolean UniformSearched = False;
    std::int16_t LabMessageState = 0;
    Boolean LabDoorOpen = False;
    std::int16_t ReplicatorState = 0;
    Boolean ShowerUsed = False;
    Boolean AttendantGreeted = False;
    Boolean ScientistThanked = False;
    Boolean HangarEventSeen = False;
    Boolean CorridorEventSeen = False;
    Boolean ArsenalExamined = False;
    Boolean CaptainDoorOpen = False;
    Boolean SecondCabinDoorOpen = False;
    Boolean HatchUsed = False;
    Boolean CaptainGreeted = False;
    std::int16_t HangarTerminalState = 0;
    Boolean WorkerGreeted = False;
    Boolean WorkerWarned = False;
    Boolean CoilHandedOver = False;
    Boolean WireDoorUnlocked = False;
    Boolean WireDoorOpen = False;
    std::int16_t BrokenTerminalState = 0;
    Boolean CaptainDismissed = False;
    Boolean CaptainWardrobeOpen = False;
    Boolean DocumentsTaken = False;
    Boolean Documents2Taken = False;
    Boolean DocumentsRead = False;
    Boolean Documents2Read = False;
    std::int16_t DarkGlassesState = 0;
    Boolean MaintenanceManSearched = False;
    Boolean MaintenanceManGreeted = False;
    Boolean NewspaperGiven = False;
    Boolean TesterHandedOver = False;
    Boolean ArchiveFolder5Read = False;
    Boolean GuardGreeted = False;
    Boolean TechnicianCalled = False;
    Boolean CardHandedOver = False;
    Boolean OfficeDoorUnlocked = False;
    Boolean OfficeDoorOpen = False;
    Boolean OfficeWardrobeOpen = False;
    Boolean OperatingTerminalTaken = False;
    Boolean OperatingTerminalBrought = False;
    Boolean CableConnected = False;
    Boolean TesterConnected = False;
    Boolean KeypadDoorUnlocked = False;
    Boolean KeypadDoorOpen = False;
    std::int16_t CalledAwayState = 0;
    std::int16_t CalledAwayDestination = 0;
    Boolean Sector7Visited = False;
    Boolean InnerRoomWardrobeOpen = False;
    Boolean BriefcaseOpen = False;
    Boolean BriefcaseSearched = False;
    Boolean VeteranGreeted = False;
    std::int16_t StoreMessageState = 0;
    std::int16_t OldDoorState = 0;
    Boolean OldDoorAsked = False;
    Boolean OldDoorOpen = False;
    std::int16_t ContainerStoryState = 0;
    Boolean Story207Shown = False;
    Boolean BridgeAlertReady = False;
    Boolean BombExamined = False;
    std::int16_t CaptainAlertState = 0;
    std::int16_t ComputerState = 0;
    Boolean BinHintGiven = False;
    Boolean DarkGlassesAsked = False;
    Boolean OldDisketteUsed = False;
    Boolean SamplesFound = False;
    std::int16_t DnaSampleItem = 0;
    Boolean DnaReferenceLoaded = False;
    Boolean DnaSampleLoaded = False;
    Boolean DnaMatchFound = False;
    Boolean CaptainInformed = False;
    Boolean BodyFound = False;
    Boolean BodyExamined = False;
    Boolean ReportRead = False;
    Boolean CartReleased = False;
    Boolean BombOnCart = False;
    Boolean CartOnTeleport = False;
    Boolean KeypadDisabled = False;
    Boolean ScientistAsked = False;
    Boolean UniformPlaced = False;
};

struct StoryFlag {
    std::string_view Name;
    std::int16_t GameState::*Value;
};

// All story flags in the order of a saved game.
std::span<const StoryFlag> StoryFlags();
