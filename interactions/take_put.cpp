#include "core/carrying.h"
#include "interactions/answers.h"
#include "interactions/verbs.h"

namespace {

using enum Item;

void LeaveUniform(Game& game) {
    enum : TextNumber { NotForThisShift = 25 };
    Tell(game, NotForThisShift);
}

// In the next two functions the flag changes even when TakeItem refuses because the inventory is full.
void TakeBriefcase(Game& game) {
    TakeItem(game, Briefcase);
    game.state.BriefcaseOpen = False;
}

void TakeOperatingTerminal(Game& game) {
    TakeItem(game, OperatingTerminal);
    game.state.OperatingTerminalTaken = True;
}

void TakeAuthorisation(Game& game) {
    enum : TextNumber { CaughtPickpocketing = 148 };
    if (game.state.NewspaperGiven != True) {
        Tell(game, CaughtPickpocketing);
        game.state.GameOver = True;
        return;
    }
    WriteOutput(game, "Muž je do novin hodně zabraný, takže si ani nevšiml, že mu někdo něco vytahuje z kapsy.");
    TakeItem(game, Authorisation);
}

void TakeCart(Game& game) {
    enum : TextNumber { EyesOnYou = 108, LetHim = 256 };
    Tell(game, EyesOnYou);
    if (game.state.CartReleased != True) return;
    Tell(game, LetHim);
    TakeItem(game, Cart);
}

}  // namespace

void DoTake(Game& game, Item item) {
    switch (item) {
        case Uniform: return LeaveUniform(game);
        case Briefcase: return TakeBriefcase(game);
        case Authorisation: return TakeAuthorisation(game);
        case OperatingTerminal: return TakeOperatingTerminal(game);
        case Cart: return TakeCart(game);
        default: break;
    }
    if (!IsPortable(item)) return WriteOutput(game, "Tohle si nemůžeš vzít!");
    TakeItem(game, item);
}

void DoPut(Game& game, Item item) {
    if (!IsPortable(item)) return WriteOutput(game, "Tohle nemůžeš položit!");
    DropItem(game, item);
    if (item == OperatingTerminal && game.state.CurrentSector == sector::Office) game.state.OperatingTerminalBrought = False;
}
