// What the headless player prints: the windows and the game state as one JSON object each.
#pragma once

#include <string>

#include "core/game.h"
#include "ui/memory_desktop.h"

std::string ShowReport(const Game& game, ui::MemoryDesktop& desktop);
std::string StateReport(const GameState& state);
std::string RefusalReport(const std::string& why);
