#include "core/carrying.h"
#include "core/stages.h"
#include "interactions/use_cases.h"

namespace {

// True when the turn of the key unlocked the door.
bool TurnKey(Game& game) {
    GameState& state = game.state;
    if (state.CabinDoorUnlocked != True) {
        state.CabinDoorUnlocked = True;
        WriteOutput(game, "Odemkl jsi dveře speciálním klíčem...");
        return true;
    }
    if (state.CabinDoorOpen != False) {
        WriteOutput(game, "Nemůžeš zamknout dveře, když jsou otevřené!");
        return false;
    }
    WriteOutput(game, "Klíčem jsi dveře zamkl...");
    state.CabinDoorUnlocked = False;
    return false;
}

}  // namespace

void TurnKeyInside(Game& game) {
    if (!TurnKey(game) || game.state.LabMessageState != MessageState::None) return;
    WriteOutput(game, "A hele! Na terminál zrovna přišla nějaká zpráva! Od koho asi bude...?");
    game.state.LabMessageState = MessageState::Waiting;
}

void TurnKeyOutside(Game& game) {
    TurnKey(game);
}

void SwipeCard(Game& game) {
    enum : TextNumber { Unlocks = 163, Locks = 164 };
    const bool locked = game.state.OfficeDoorUnlocked == False;
    Tell(game, locked ? Unlocks : Locks);
    game.state.OfficeDoorUnlocked = locked ? True : False;
}

void ReturnCard(Game& game) {
    enum : TextNumber { TakesItBack = 174, NotYet = 175 };
    if (game.state.OperatingTerminalBrought == False) return Tell(game, NotYet);
    Tell(game, TakesItBack);
    RemoveFromInventory(game, Item::SecurityCard);
}
