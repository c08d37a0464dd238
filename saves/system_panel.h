// The System Panel, through which games are saved and loaded by name.
#pragma once

#include <string_view>

#include "core/game.h"

// Whether the panel takes the name, as far as its characters go.
bool CanNameSave(std::string_view name);

// Lists anew when the panel is open, since files came or went behind its back. What is typed stays.
void RenewSystemPanel(Game& game);

// Connects the panel's events; the start-up calls it once.
void ConnectForm4(Game& game);
