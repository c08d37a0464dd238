// The ship's doors, a row for each side: opening one from a side makes that side's exit passable and leaves the other side as it is.
#pragma once

#include <span>
#include <string_view>

#include "core/game_state.h"

constexpr std::string_view DoorOpened = "Otevřel jsi dveře...", DoorAlreadyOpen = "Dveře jsou již otevřené!";
constexpr std::string_view DoorClosed = "Zavřel jsi dveře...", DoorAlreadyClosed = "Dveře jsou již zavřené!";

struct DoorSide {
    Item Side;
    Boolean GameState::*Open;
    std::int16_t Sector;
    Boolean SectorRecord::*Exit;
    Boolean GameState::*Unlocked;  // null: it has no lock
    std::string_view Opened, Closed;
    std::string_view AlreadyOpen = DoorAlreadyOpen;
    std::string_view AlreadyClosed = DoorAlreadyClosed;
};

std::span<const DoorSide> DoorSides();
