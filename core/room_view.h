// The view of a sector in the output box: its description, what lies there and where one can go.
#pragma once

#include "core/output.h"

void DescribeSector(Game& game, std::int16_t sector, Output output);

// Appends the view of the sector that the player is in.
void RefreshSector(Game& game);
