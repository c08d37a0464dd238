// The ship's doors, a row each with the two sides from which a door is seen. Opening or closing a door changes the exit of the side where
// the player stands and leaves the exit of the other side as it is.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "core/game_state.h"

constexpr std::string_view DoorOpened = "Otevřel jsi dveře...", DoorAlreadyOpen = "Dveře jsou již otevřené!";
constexpr std::string_view DoorClosed = "Zavřel jsi dveře...", DoorAlreadyClosed = "Dveře jsou již zavřené!";

struct DoorSide {
    Item Thing;
    std::int16_t Sector;
    Boolean SectorRecord::*Exit;
    std::string_view Opened, Closed;
    std::string_view AlreadyOpen = DoorAlreadyOpen;
    std::string_view AlreadyClosed = DoorAlreadyClosed;
};

enum class Hinge { Plain, FallsShut };  // a door falls shut as soon as the player enters either of its sectors

struct Door {
    Boolean GameState::*Open;
    Boolean GameState::*Unlocked;  // null: it has no lock
    Hinge Hinges;
    std::array<DoorSide, 2> Sides;
};

std::span<const Door> Doors();
