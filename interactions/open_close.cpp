#include <algorithm>

#include "core/stages.h"
#include "interactions/answers.h"
#include "interactions/containers.h"
#include "interactions/doors.h"
#include "interactions/verbs.h"

namespace {

using enum Item;

enum : TextNumber {
    MeshDoorLocked = 70,
    NothingToReportYet = 79,
    SlidesByItself = 80,
    CaptainIsWatching = 100,
    SomebodyWasInside = 183,
    OldDoorStuck = 203,
    ContainerFound = 204,
};

// The story's own objection, told before the lock is tried or the door found open.
std::optional<TextNumber> WhyNotOpened(const GameState& state, Item item) {
    switch (item) {
        case CaptainDoorOutside:
            if (state.CorridorEventSeen == True && state.ArsenalExamined == False &&
                state.HangarTerminalState < HangarTerminalStage::Repaired) {
                return NothingToReportYet;
            }
            return std::nullopt;
        case WireDoorOutside:
        case WireDoorInside: return state.WireDoorUnlocked == False ? std::optional(MeshDoorLocked) : std::nullopt;
        case CaptainWardrobe:
            if (state.CaptainDismissed == False || IsInCurrentSector(state, Captain)) return CaptainIsWatching;
            return std::nullopt;
        default: return std::nullopt;
    }
}

bool SomebodyWaitsBehind(const GameState& state, const DoorSide& door) {
    return door.Open == &GameState::KeypadDoorOpen && state.CalledAwayState == CalledAwayStage::Inside;
}

void OpenDoor(Game& game, const DoorSide& door) {
    GameState& state = game.state;
    if (door.Unlocked != nullptr && state.*door.Unlocked == False) return WriteOutput(game, "Dveře jsou zamčené!");
    if (state.*door.Open == True) return WriteOutput(game, door.AlreadyOpen);
    if (SomebodyWaitsBehind(state, door)) {
        Tell(game, SomebodyWasInside);
        state.GameOver = True;
        return;
    }
    state.*door.Open = True;
    state.Sectors[door.Sector].*door.Exit = True;
    WriteOutput(game, door.Opened);
    RefreshSector(game);
}

void CloseDoor(Game& game, const DoorSide& door) {
    GameState& state = game.state;
    if (state.*door.Open == False) return WriteOutput(game, door.AlreadyClosed);
    state.*door.Open = False;
    state.Sectors[door.Sector].*door.Exit = False;
    WriteOutput(game, door.Closed);
    RefreshSector(game);
}

void OpenOldDoor(Game& game) {
    GameState& state = game.state;
    if (state.OldDoorState < OldDoorStage::Repaired) return Tell(game, OldDoorStuck);
    if (state.OldDoorOpen == True) return WriteOutput(game, "Dveře jsou již otevřené!");
    state.OldDoorOpen = True;
    WriteOutput(game, "Otevřel jsi dveře...");
    if (state.ContainerStoryState == ContainerStage::Hidden) {
        state.ContainerStoryState = ContainerStage::Found;
        Tell(game, ContainerFound);
    }
    Place(game, Item::Container);
}

void CloseOldDoor(Game& game) {
    if (game.state.OldDoorOpen == False) return WriteOutput(game, "Dveře jsou již zavřené!");
    game.state.OldDoorOpen = False;
    WriteOutput(game, "Zavřel jsi dveře...");
    Remove(game, Item::Container);
}

void OpenContainer(Game& game, const struct Container& container) {
    if (game.state.*container.Open == True) return WriteOutput(game, container.AlreadyOpen);
    game.state.*container.Open = True;
    WriteOutput(game, container.Opened);
}

// What was found inside but not taken is out of sight again.
void HideContents(Game& game, Item container) {
    if (container == CabinWardrobe) {
        game.state.UniformPlaced = False;
        if (HoldsItem(game.state.Sectors[sector::Cabin], Uniform)) RemoveItemFromSector(game, sector::Cabin, Uniform, Redraw::Yes);
    }
    if (container == OfficeWardrobe && game.state.OperatingTerminalTaken == False && IsInCurrentSector(game.state, OperatingTerminal)) {
        Remove(game, OperatingTerminal);
    }
}

void CloseContainer(Game& game, const struct Container& container) {
    if (game.state.*container.Open == False) return WriteOutput(game, container.AlreadyClosed);
    game.state.*container.Open = False;
    WriteOutput(game, container.Closed);
    HideContents(game, container.Thing);
}

const DoorSide* FindDoor(Item item) {
    const auto door = std::ranges::find(DoorSides(), item, &DoorSide::Side);
    return door == DoorSides().end() ? nullptr : &*door;
}

const struct Container* FindContainer(Item item) {
    const auto container = std::ranges::find(Containers(), item, &Container::Thing);
    return container == Containers().end() ? nullptr : &*container;
}

}  // namespace

void DoOpen(Game& game, Item item) {
    if (item == DiningHallDoorOutside || item == DiningHallDoorInside) return Tell(game, SlidesByItself);
    if (item == OldDoor) return OpenOldDoor(game);
    if (const auto objection = WhyNotOpened(game.state, item)) return Tell(game, *objection);
    if (const DoorSide* door = FindDoor(item)) return OpenDoor(game, *door);
    if (const auto* container = FindContainer(item)) return OpenContainer(game, *container);
    WriteOutput(game, "Toto se nedá otevřít!");
}

void DoClose(Game& game, Item item) {
    if (item == DiningHallDoorOutside || item == DiningHallDoorInside) return Tell(game, SlidesByItself);
    if (item == OldDoor) return CloseOldDoor(game);
    if (const DoorSide* door = FindDoor(item)) return CloseDoor(game, *door);
    if (const auto* container = FindContainer(item)) return CloseContainer(game, *container);
    WriteOutput(game, "Toto se nedá zavřít!");
}
