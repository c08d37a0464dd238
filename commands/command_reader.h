// Runs the command that the main window has assembled, and steps the game from its title to the first sector.
#pragma once

#include "core/game.h"

// Acts on CommandVerb, CommandObject and CommandTarget, never on the text of the command line. May end the program.
void ReadCommand(Game& game);

// Empties the command line and its object lists and forgets what was chosen.
void ClearCommand(Game& game);
