#include "core/game_state.h"

void StandIn(GameState& state, std::int16_t sector) {
    state.CurrentSector = sector;
    state.PlayerX = state.Sectors[sector].X;
    state.PlayerY = state.Sectors[sector].Y;
}
