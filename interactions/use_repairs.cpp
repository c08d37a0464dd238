#include "core/carrying.h"
#include "core/stages.h"
#include "interactions/use_cases.h"

void RepairReplicator(Game& game) {
    enum : TextNumber { LookFirst = 41, CoverOff = 42, NothingToUnscrew = 43, Repaired = 46 };
    switch (game.state.ReplicatorState) {
        case ReplicatorStage::Broken: return Tell(game, LookFirst);
        case ReplicatorStage::Examined:
            Tell(game, CoverOff);
            game.state.ReplicatorState = ReplicatorStage::Opened;
            return;
        case ReplicatorStage::Opened: return Tell(game, NothingToUnscrew);
        case ReplicatorStage::CoilFitted:
            Tell(game, Repaired);
            game.state.ReplicatorState = ReplicatorStage::Repaired;
            return;
        default: return Refuse(game);
    }
}

void FitCoil(Game& game) {
    enum : TextNumber { CoilSlidesIn = 47 };
    if (game.state.ReplicatorState != ReplicatorStage::Opened) return Refuse(game);
    Tell(game, CoilSlidesIn);
    game.state.ReplicatorState = ReplicatorStage::CoilFitted;
    RemoveFromInventory(game, Item::Coil);
}

void UnscrewPanel(Game& game) {
    enum : TextNumber { BombBehindIt = 212 };
    GameState& state = game.state;
    if (state.ContainerStoryState < ContainerStage::AgentTold) return WriteOutput(game, "To není moc dobrý nápad...");
    if (state.ContainerStoryState != ContainerStage::AgentTold || state.BridgeAlertReady != False) return Refuse(game);
    state.BridgeAlertReady = True;
    Tell(game, BombBehindIt);
    Place(game, Item::SeismicBomb);
}

void RepairHangarTerminal(Game& game) {
    enum : TextNumber { CoverOff = 110, Repaired = 112, DispenserMissing = 113 };
    switch (game.state.HangarTerminalState) {
        case HangarTerminalStage::Broken:
            Tell(game, CoverOff);
            game.state.HangarTerminalState = HangarTerminalStage::Opened;
            return;
        case HangarTerminalStage::Opened: return Tell(game, DispenserMissing);
        case HangarTerminalStage::DispenserFitted:
            Tell(game, Repaired);
            game.state.HangarTerminalState = HangarTerminalStage::Repaired;
            return;
        default: return Refuse(game);
    }
}

void FitIonDispenser(Game& game) {
    enum : TextNumber { DispenserClicksIn = 111 };
    if (game.state.HangarTerminalState != HangarTerminalStage::Opened) return Refuse(game);
    Tell(game, DispenserClicksIn);
    game.state.HangarTerminalState = HangarTerminalStage::DispenserFitted;
    RemoveFromInventory(game, Item::IonDispenser);
}

void RepairOldDoor(Game& game) {
    enum : TextNumber { LookFirst = 196, Mended = 198 };
    GameState& state = game.state;
    if (state.BriefcaseSearched == False) return Refuse(game);
    switch (state.OldDoorState) {
        case OldDoorStage::Untouched: return Tell(game, LookFirst);
        case OldDoorStage::Examined:
            Tell(game, Mended);
            state.OldDoorState = OldDoorStage::Repaired;
            return;
        default: return Refuse(game);
    }
}

void DismantleBrokenTerminal(Game& game) {
    enum : TextNumber { CoverOff = 127, LookInside = 128, CoverOn = 130 };
    GameState& state = game.state;
    switch (state.BrokenTerminalState) {
        case BrokenTerminalStage::Untouched: state.BrokenTerminalState = BrokenTerminalStage::Opened; return Tell(game, CoverOff);
        case BrokenTerminalStage::Opened: return Tell(game, LookInside);
        case BrokenTerminalStage::DispenserFound:
            Tell(game, CoverOn);
            state.BrokenTerminalState = BrokenTerminalStage::Closed;
            return;
        default: return Refuse(game);
    }
}
