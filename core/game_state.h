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
    std::int16_t CurrentSector = 0;                 // 0 until the game proper begins
    Boolean TerminalLoggedIn = False;               // at the terminal that is open
    std::int16_t CommandVerb = 0;                   // a verb; -1: none, as in the two below
    std::int16_t CommandObject = 0;                 // an Item, while the player goes a Direction
    std::int16_t CommandTarget = 0;                 // an Item
    std::int16_t GameStage = 0;                     // a GameStage
    std::array<std::int16_t, 5> TerminalMailbox{};  // by terminal the kind of the message that waits, 0: none
    Boolean GameOver = False;
    std::string DoorCode;  // empty: none

    // The story flags, in the order of a saved game. Those with stages name them; core/stages.h says which these are.
    Boolean CabinDoorOpen = False;
    Boolean CabinDoorUnlocked = False;
    Boolean BathroomDoorOpen = False;
    Boolean CabinWardrobeOpen = False;
    Boolean CupboardOpen = False;
    Boolean UniformSearched = False;
    std::int16_t LabMessageState = 0;  // MessageState
    Boolean LabDoorOpen = False;
    std::int16_t ReplicatorState = 0;  // ReplicatorStage
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
    std::int16_t HangarTerminalState = 0;  // HangarTerminalStage
    Boolean WorkerGreeted = False;
    Boolean WorkerWarned = False;
    Boolean CoilHandedOver = False;
    Boolean WireDoorUnlocked = False;
    Boolean WireDoorOpen = False;
    std::int16_t BrokenTerminalState = 0;  // BrokenTerminalStage
    Boolean CaptainDismissed = False;
    Boolean CaptainWardrobeOpen = False;
    Boolean DocumentsTaken = False;
    Boolean Documents2Taken = False;
    Boolean DocumentsRead = False;
    Boolean Documents2Read = False;
    std::int16_t DarkGlassesState = 0;  // DarkGlassesStage
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
    std::int16_t CalledAwayState = 0;        // CalledAwayStage
    std::int16_t CalledAwayDestination = 0;  // 1 the captain's cabin, 2 the hangar, 3 the store; 0: not drawn yet
    Boolean Sector7Visited = False;
    Boolean InnerRoomWardrobeOpen = False;
    Boolean BriefcaseOpen = False;
    Boolean BriefcaseSearched = False;
    Boolean VeteranGreeted = False;
    std::int16_t StoreMessageState = 0;  // MessageState
    std::int16_t OldDoorState = 0;       // OldDoorStage
    Boolean OldDoorAsked = False;
    Boolean OldDoorOpen = False;
    std::int16_t ContainerStoryState = 0;  // ContainerStage
    Boolean Story207Shown = False;
    Boolean BridgeAlertReady = False;
    Boolean BombExamined = False;
    std::int16_t CaptainAlertState = 0;  // CaptainAlertStage
    std::int16_t ComputerState = 0;      // ComputerStage
    Boolean BinHintGiven = False;
    Boolean DarkGlassesAsked = False;
    Boolean OldDisketteUsed = False;
    Boolean SamplesFound = False;
    std::int16_t DnaSampleItem = 0;  // an Item; 0: the vessel is empty
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
