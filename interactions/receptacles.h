// Wardrobes, the cupboard and the briefcase: opening shows nothing, what lies inside is found by examining.
#pragma once

#include <span>
#include <string_view>

#include "core/game_state.h"

struct Receptacle {
    Item Thing;
    Boolean GameState::*Open;
    std::string_view Opened = "Otevřel jsi skříň...";
    std::string_view Closed = "Zavřel jsi skříň...";
    std::string_view AlreadyOpen = "Skříň je již otevřená!";
    std::string_view AlreadyClosed = "Skříň je již zavřená!";
};

std::span<const Receptacle> Receptacles();
