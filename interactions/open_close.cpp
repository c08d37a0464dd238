#include <algorithm>
#include <optional>

#include "core/stages.h"
#include "interactions/answers.h"
#include "interactions/doors.h"
#include "interactions/receptacles.h"
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

// The text by which the story forbids the opening. It comes before the door's own answers, that it is locked or already open.
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

bool SomebodyWaitsBehind(const GameState& state, const Door& door) {
    return door.Open == &GameState::KeypadDoorOpen && state.CalledAwayState == CalledAwayStage::Inside;
}

// A door and the side of it that the player sees.
struct Doorway {
    const Door& Which;
    const DoorSide& From;
};

void OpenDoor(Game& game, const Doorway& doorway) {
    GameState& state = game.state;
    const auto& [door, side] = doorway;
    if (door.Unlocked != nullptr && state.*door.Unlocked == False) return WriteOutput(game, "Dveře jsou zamčené!");
    if (state.*door.Open == True) return WriteOutput(game, side.AlreadyOpen);
    if (SomebodyWaitsBehind(state, door)) {
        Tell(game, SomebodyWasInside);
        state.GameOver = True;
        return;
    }
    state.*door.Open = True;
    state.Sectors[side.Sector].*side.Exit = True;
    WriteOutput(game, side.Opened);
    RefreshSector(game);
}

void CloseDoor(Game& game, const Doorway& doorway) {
    GameState& state = game.state;
    const auto& [door, side] = doorway;
    if (state.*door.Open == False) return WriteOutput(game, side.AlreadyClosed);
    state.*door.Open = False;
    state.Sectors[side.Sector].*side.Exit = False;
    WriteOutput(game, side.Closed);
    RefreshSector(game);
}

void OpenOldDoor(Game& game) {
    GameState& state = game.state;
    if (state.OldDoorState < OldDoorStage::Repaired) return Tell(game, OldDoorStuck);
    if (state.OldDoorOpen == True) return WriteOutput(game, DoorAlreadyOpen);
    state.OldDoorOpen = True;
    WriteOutput(game, DoorOpened);
    if (state.ContainerStoryState == ContainerStage::Hidden) {
        state.ContainerStoryState = ContainerStage::Found;
        Tell(game, ContainerFound);
    }
    Place(game, Container);
}

void CloseOldDoor(Game& game) {
    if (game.state.OldDoorOpen == False) return WriteOutput(game, DoorAlreadyClosed);
    game.state.OldDoorOpen = False;
    WriteOutput(game, DoorClosed);
    Remove(game, Container);
}

void OpenReceptacle(Game& game, const Receptacle& receptacle) {
    if (game.state.*receptacle.Open == True) return WriteOutput(game, receptacle.AlreadyOpen);
    game.state.*receptacle.Open = True;
    WriteOutput(game, receptacle.Opened);
}

// What the player has found in the receptacle but not taken is out of sight again. The view is shown even when there was nothing, because
// removing an item shows it whether the item was there or not.
void HideContents(Game& game, Item receptacle) {
    if (receptacle == CabinWardrobe) {
        game.state.UniformPlaced = False;
        RemoveItemFromSector(game, sector::Cabin, Uniform, Redraw::Yes);
    }
    if (receptacle == OfficeWardrobe && game.state.OperatingTerminalTaken == False) Remove(game, OperatingTerminal);
}

void CloseReceptacle(Game& game, const Receptacle& receptacle) {
    if (game.state.*receptacle.Open == False) return WriteOutput(game, receptacle.AlreadyClosed);
    game.state.*receptacle.Open = False;
    WriteOutput(game, receptacle.Closed);
    HideContents(game, receptacle.Thing);
}

std::optional<Doorway> FindDoor(Item item) {
    for (const Door& door : Doors()) {
        for (const DoorSide& side : door.Sides) {
            if (side.Thing == item) return Doorway{door, side};
        }
    }
    return std::nullopt;
}

const Receptacle* FindReceptacle(Item item) {
    const auto found = std::ranges::find(Receptacles(), item, &Receptacle::Thing);
    return found == Receptacles().end() ? nullptr : &*found;
}

}  // namespace

void DoOpen(Game& game, Item item) {
    if (item == DiningHallDoorOutside || item == DiningHallDoorInside) return Tell(game, SlidesByItself);
    if (item == OldDoor) return OpenOldDoor(game);
    if (const auto objection = WhyNotOpened(game.state, item)) return Tell(game, *objection);
    if (const auto door = FindDoor(item)) return OpenDoor(game, *door);
    if (const Receptacle* receptacle = FindReceptacle(item)) return OpenReceptacle(game, *receptacle);
    WriteOutput(game, "Toto se nedá otevřít!");
}

void DoClose(Game& game, Item item) {
    if (item == DiningHallDoorOutside || item == DiningHallDoorInside) return Tell(game, SlidesByItself);
    if (item == OldDoor) return CloseOldDoor(game);
    if (const auto door = FindDoor(item)) return CloseDoor(game, *door);
    if (const Receptacle* receptacle = FindReceptacle(item)) return CloseReceptacle(game, *receptacle);
    WriteOutput(game, "Toto se nedá zavřít!");
}
