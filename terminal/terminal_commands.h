// The command language of a ship terminal, for a player who has logged in.
#pragma once

#include "core/game.h"

// Answers one typed line. `terminal` is the index of the terminal in use.
void RunTerminalCommand(Game& game, std::size_t terminal, std::string_view line);
