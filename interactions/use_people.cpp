#include "core/carrying.h"
#include "interactions/use_cases.h"

void TakeShower(Game& game) {
    enum : TextNumber { FeelsHuman = 55, RationUsedUp = 56 };
    if (game.state.ShowerUsed != False) return Tell(game, RationUsedUp);
    Tell(game, FeelsHuman);
    game.state.ShowerUsed = True;
}

void TakeMeal(Game& game) {
    enum : TextNumber { OnePortionAShift = 81, Meal = 82 };
    if (game.state.HatchUsed == True) return Tell(game, OnePortionAShift);
    game.state.HatchUsed = True;
    Tell(game, Meal);
}

void GiveNewspaper(Game& game) {
    enum : TextNumber { DeepInTheNewspaper = 147 };
    Tell(game, DeepInTheNewspaper);
    game.state.NewspaperGiven = True;
    RemoveFromInventory(game, Item::Newspaper);
}

void ShowAuthorisation(Game& game) {
    enum : TextNumber { LetsHimPass = 153 };
    GameState& state = game.state;
    Tell(game, LetsHimPass);
    StandIn(state, sector::EngineRoom);  // the guard leads the player in, so this is no step of his own
    RefreshSector(game);
    if (state.TechnicianCalled != False) return;
    AddItemToSector(game, sector::Crossing, Item::Technician, Redraw::No);
    state.TechnicianCalled = True;
}

void GivePlans(Game& game) {
    enum : TextNumber { NotHisCross = 173 };
    Tell(game, NotHisCross);
    RemoveFromInventory(game, Item::Plans);
}

void ReturnDocuments(Game& game, Item documents, Boolean& taken) {
    WriteOutput(game, "Vrátil jsi dokumenty zpět do stolu na své místo.");
    RemoveFromInventory(game, documents);
    taken = False;
    RefreshSector(game);
}
