#include "core/carrying.h"
#include "core/stages.h"
#include "interactions/use_cases.h"

void ReadDiskette(Game& game) {
    enum : TextNumber { NoDrive = 220, ListOfNames = 224 };
    GameState& state = game.state;
    switch (state.ComputerState) {
        case ComputerStage::Untouched:
            Tell(game, NoDrive);
            state.ComputerState = ComputerStage::DriveMissing;
            return;
        case ComputerStage::DriveMissing: return WriteOutput(game, "Bohužel tento počítač nemá disketovou mechaniku.");
        case ComputerStage::DriveFitted:
            state.ComputerState = ComputerStage::DisketteRead;
            Tell(game, ListOfNames);
            RemoveFromInventory(game, Item::Diskette);
            return Place(game, Item::ManInDarkGlasses);
        default: return Refuse(game);
    }
}

void FitFloppyDrive(Game& game) {
    enum : TextNumber { DriveIsIn = 223 };
    game.state.ComputerState = ComputerStage::DriveFitted;
    Tell(game, DriveIsIn);
    RemoveFromInventory(game, Item::FloppyDrive);
}

void ReadOldDiskette(Game& game) {
    enum : TextNumber { FourNamesMore = 231 };
    Tell(game, FourNamesMore);
    RemoveFromInventory(game, Item::OldDiskette);
    game.state.OldDisketteUsed = True;
    Remove(game, Item::ManInDarkGlasses);
}

void LoadSample(Game& game, Item sample, TextNumber text) {
    enum : TextNumber { VesselIsFull = 239 };
    GameState& state = game.state;
    if (state.DnaSampleLoaded == True) return Tell(game, VesselIsFull);
    Tell(game, text);
    state.DnaSampleItem = NumberOf(sample);
    RemoveFromInventory(game, sample);
    state.DnaSampleLoaded = True;
}

void LoadReference(Game& game) {
    enum : TextNumber { ReferenceIsIn = 237 };
    if (game.state.OldDisketteUsed == False) return Refuse(game);
    game.state.DnaReferenceLoaded = True;
    RemoveFromInventory(game, Item::Fingernail);
    Tell(game, ReferenceIsIn);
}

void LoadBomb(Game& game) {
    enum : TextNumber { BombIsOnTheCart = 257 };
    Tell(game, BombIsOnTheCart);
    game.state.BombOnCart = True;
    Remove(game, Item::SeismicBomb);
}

void PushCartOntoTeleport(Game& game) {
    enum : TextNumber { NothingOnTheCart = 258, OnTheTeleport = 260 };
    if (game.state.BombOnCart == False) return Tell(game, NothingOnTheCart);
    Tell(game, OnTheTeleport);
    game.state.CartOnTeleport = True;
    RemoveFromInventory(game, Item::Cart);
}

void FireDetonator(Game& game) {
    enum : TextNumber { BombStillAboard = 261, FirstOfTheEnd = 262, LastOfTheEnd = 266 };
    if (game.state.CartOnTeleport == False) return Tell(game, BombStillAboard);
    ShowStoryText(game, FirstOfTheEnd, Output::Replace);
    for (TextNumber text = FirstOfTheEnd + 1; text <= LastOfTheEnd; ++text) Tell(game, text);
    game.state.GameOver = True;
}
