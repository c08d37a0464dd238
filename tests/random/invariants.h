// What holds of the game between two events, whatever the player does.
#pragma once

#include "core/game.h"
#include "ui/memory_desktop.h"

void ExpectSoundState(const GameState& state);
void ExpectSoundWindows(const Game& game, const ui::MemoryDesktop& desktop);

// Holds until a game is loaded, because a load brings the flags of the doors but leaves the exits as they are.
void ExpectShutDoorsToStopThePlayer(const GameState& state);

// Without a load in between.
void ExpectOnlyProgress(const GameState& before, const GameState& now);

void ExpectTheSame(const GameState& before, const GameState& now);
