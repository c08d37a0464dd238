#include "commands/movement.h"

#include <algorithm>
#include <array>

#include "core/carrying.h"
#include "core/sector_items.h"
#include "core/stages.h"
#include "interactions/doors.h"
#include "terminal/terminal_directory.h"

namespace {

enum : TextNumber {
    LightsOutInTheHangar = 77,
    FigureInTheCorridor = 78,
    CaughtWithDocuments = 138,
    MeetingAtTheLaboratory = 141,
    OccupantLeaves = 184,
    CaughtWithBriefcase = 191,
    AgentWaitsAtTheLaboratory = 207,
    CaptainRunsToTheBridge = 215,
    CaughtByOpenWardrobe = 217,
    CaptainReturns = 218,
};

void Step(GameState& state, Direction direction) {
    state.PlayerX = static_cast<std::int16_t>(state.PlayerX + WayTo(direction).X);
    state.PlayerY = static_cast<std::int16_t>(state.PlayerY + WayTo(direction).Y);
    // No sector lies between the crossing and the west end: the passage takes one step.
    if (state.PlayerX == 3 && state.PlayerY == 2) state.PlayerX = direction == Direction::East ? 4 : 2;
}

void CloseDoorsBehindPlayer(GameState& state) {
    const auto isHere = [&](const DoorSide& side) { return side.Sector == state.CurrentSector; };
    for (const Door& door : Doors()) {
        if (door.Hinges != Hinge::FallsShut || !std::ranges::any_of(door.Sides, isHere)) continue;
        state.*door.Open = False;
        for (const DoorSide& side : door.Sides) state.Sectors[side.Sector].*side.Exit = False;
    }
    if (state.CurrentSector == sector::CaptainsCabin || state.CurrentSector == sector::EastEnd) {
        // The attendant shuts the mesh door again, but leaves the exit of the back room open, so that the player can come out.
        state.Sectors[sector::Store].South = False;
        state.WireDoorOpen = False;
    }
}

void EndStory(Game& game, TextNumber text) {
    ShowStoryText(game, text);
    game.state.GameOver = True;
}

bool CaughtByCaptain(const GameState& state) {
    const bool inSight = state.CurrentSector == sector::CaptainsCabin || state.CurrentSector == sector::EastEnd;
    return inSight && (state.DocumentsTaken == True || state.Documents2Taken == True);
}

void NoteArrival(GameState& state) {
    if (state.CurrentSector == sector::EngineRoom && state.OperatingTerminalBrought == False && IsCarried(state, Item::OperatingTerminal)) {
        state.OperatingTerminalBrought = True;
    }
    if (state.CurrentSector == sector::InnerRoom && state.Sector7Visited == False) {
        state.Sector7Visited = True;
        state.TerminalMailbox[TerminalIndexOf(Item::InnerRoomTerminal)] = 0;
    }
}

void CaptainComesBack(Game& game) {
    GameState& state = game.state;
    state.DarkGlassesState = DarkGlassesStage::InDiningHall;
    AddItemToSector(game, sector::DiningHall, Item::ManInDarkGlasses, Redraw::No);
    WriteOutput(game, "Hned jak jsi opustil kapitánovu kajutu, objevil se kapitán a vešel do své kajuty.");
    AddItemToSector(game, sector::CaptainsCabin, Item::Captain, Redraw::No);
    state.CaptainWardrobeOpen = False;
}

struct StepEvent {
    std::int16_t Sector;  // None: wherever the player steps
    bool (*Applies)(const GameState&);
    void (*Happens)(Game&);
};

// The first that applies happens, and no other.
constexpr auto StepEvents = std::to_array<StepEvent>({
    {sector::Hangar,
     [](const GameState& state) { return state.ReplicatorState == ReplicatorStage::Repaired && state.HangarEventSeen == False; },
     [](Game& game) {
         ShowStoryText(game, LightsOutInTheHangar);
         game.state.HangarEventSeen = True;
     }},
    {sector::EastEnd, [](const GameState& state) { return state.HangarEventSeen == True && state.CorridorEventSeen == False; },
     [](Game& game) {
         ShowStoryText(game, FigureInTheCorridor);
         game.state.CorridorEventSeen = True;
     }},
    {sector::LabCorridor, [](const GameState& state) { return state.DarkGlassesState == DarkGlassesStage::Gone; },
     [](Game& game) {
         game.state.DarkGlassesState = DarkGlassesStage::Met;
         ShowStoryText(game, MeetingAtTheLaboratory);
         AddItemToSector(game, sector::DiningHall, Item::MaintenanceMan, Redraw::No);
     }},
    {sector::LabCorridor, [](const GameState& state) { return state.CalledAwayState == CalledAwayStage::Called; },
     [](Game& game) {
         ShowStoryText(game, OccupantLeaves);
         game.state.CalledAwayState = CalledAwayStage::Gone;
     }},
    {sector::LabCorridor,
     [](const GameState& state) { return state.Story207Shown == False && state.ContainerStoryState == ContainerStage::AgentSent; },
     [](Game& game) {
         game.state.Story207Shown = True;
         ShowStoryText(game, AgentWaitsAtTheLaboratory);
     }},
    {sector::EastEnd, [](const GameState& state) { return state.CaptainAlertState == CaptainAlertStage::Alerted; },
     [](Game& game) {
         game.state.CaptainAlertState = CaptainAlertStage::OnTheBridge;
         ShowStoryText(game, CaptainRunsToTheBridge);
     }},
    {sector::EastEnd,
     [](const GameState& state) {
         return state.CaptainAlertState == CaptainAlertStage::DisketteFound && state.CaptainWardrobeOpen == True;
     },
     [](Game& game) { EndStory(game, CaughtByOpenWardrobe); }},
    {sector::EastEnd,
     [](const GameState& state) {
         return IsCarried(state, Item::Diskette) && state.CaptainAlertState == CaptainAlertStage::DisketteFound &&
                state.CaptainWardrobeOpen == False;
     },
     [](Game& game) {
         game.state.CaptainAlertState = CaptainAlertStage::Returned;
         ShowStoryText(game, CaptainReturns);
         AddItemToSector(game, sector::CaptainsCabin, Item::Captain, Redraw::No);
     }},
    {sector::None,
     [](const GameState& state) {
         return state.DocumentsRead == True && state.Documents2Read == True && state.DarkGlassesState == DarkGlassesStage::Absent;
     },
     CaptainComesBack},
});

}  // namespace

void MovePlayer(Game& game, Direction direction) {
    if (direction == Direction::None) return;
    GameState& state = game.state;
    Step(state, direction);
    state.CurrentSector = FindSector(state.Sectors, state.PlayerX, state.PlayerY);
    CloseDoorsBehindPlayer(state);
    if (CaughtByCaptain(state)) return EndStory(game, CaughtWithDocuments);
    NoteArrival(state);
    if (state.CurrentSector == sector::LabCorridor && IsCarried(state, Item::Briefcase)) return EndStory(game, CaughtWithBriefcase);

    DescribeSector(game, state.CurrentSector, Output::Replace);
    const auto event = std::ranges::find_if(StepEvents, [&](const StepEvent& each) {
        return (each.Sector == sector::None || each.Sector == state.CurrentSector) && each.Applies(state);
    });
    if (event != StepEvents.end()) event->Happens(game);
}
