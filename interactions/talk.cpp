#include "core/stages.h"
#include "interactions/answers.h"
#include "interactions/verbs.h"

namespace {

using enum Item;

enum : TextNumber { NewsForTheHangar = 247 };  // told whether one asks the captain or the man in dark glasses

// Tells the first answer once, and the later one from then on.
void TellFirstOrLater(Game& game, Boolean GameState::*told, TextNumber first, TextNumber later) {
    Tell(game, FirstTime(game.state.*told) ? first : later);
}

void TalkToTechnician(Game& game) {
    enum : TextNumber { LendsHisCard = 160, Later = 161 };
    if (!FirstTime(game.state.CardHandedOver)) return Tell(game, Later);
    Tell(game, LendsHisCard);
    Place(game, SecurityCard);
}

void TalkToScientist(Game& game) {
    enum : TextNumber { Complains = 57, Thanks = 58, Counts = 62 };
    GameState& state = game.state;
    if (state.ReplicatorState != ReplicatorStage::Repaired) {
        if (FirstTime(state.ScientistAsked)) return Tell(game, Complains);
        return WriteOutput(game,
                           "Vědec se tě zeptal na rozbitý replikátor. Oznámil jsi mu, že na tom stále pracuješ, on se od tebe odvrátil "
                           "a začal pracovat na nějakém papírování.");
    }
    if (state.ScientistThanked != False || state.HangarEventSeen != False) return Tell(game, Counts);
    Tell(game, Thanks);
    state.ScientistThanked = True;
}

void TellAgentAboutTheContainer(Game& game) {
    enum : TextNumber { WorseWhenEmpty = 208, LookBehindThePanel = 209 };
    Tell(game, WorseWhenEmpty);
    Tell(game, LookBehindThePanel);
    Remove(game, ManInDarkGlasses);
    game.state.ContainerStoryState = ContainerStage::AgentTold;
}

void AgentReleasesTheCart(Game& game) {
    enum : TextNumber { GetRidOfIt = 255 };
    Tell(game, GetRidOfIt);
    RemoveItemFromSector(game, game.state.CurrentSector, Captain, Redraw::No);
    Remove(game, ManInDarkGlasses);
    game.state.CartReleased = True;
    AddItemToSector(game, sector::CaptainsCabin, Captain, Redraw::No);
}

void TalkToManInDarkGlasses(Game& game) {
    enum : TextNumber {
        ArrangesMeeting = 140,
        HintsAtTheBin = 225,
        RepeatsHint = 227,
        AsksForTheNames = 228,
        RepeatsQuestion = 229,
        SendsToTheCaptain = 245,
        SearchTheBody = 251,
    };
    GameState& state = game.state;
    if (state.DarkGlassesState == DarkGlassesStage::InDiningHall) {
        Tell(game, ArrangesMeeting);
        Remove(game, ManInDarkGlasses);
        state.DarkGlassesState = DarkGlassesStage::Gone;
        return;
    }
    if (state.ContainerStoryState == ContainerStage::AgentSent) return TellAgentAboutTheContainer(game);
    if (state.ComputerState == ComputerStage::DisketteRead) {
        return TellFirstOrLater(game, &GameState::BinHintGiven, HintsAtTheBin, RepeatsHint);
    }
    if (state.ComputerState == ComputerStage::OldDisketteFound && state.DnaMatchFound == False) {
        return TellFirstOrLater(game, &GameState::DarkGlassesAsked, AsksForTheNames, RepeatsQuestion);
    }
    if (state.DnaMatchFound == True && state.CaptainInformed == False) return Tell(game, SendsToTheCaptain);
    if (state.CaptainInformed == True && state.BodyFound == False) return Tell(game, NewsForTheHangar);
    if (state.BodyFound == True && state.ReportRead == False) return Tell(game, SearchTheBody);
    if (state.ReportRead == True) return AgentReleasesTheCart(game);
    WriteOutput(game, "Muž v černých brýlích jen mlčky pokrčil rameny. Zatím ti k tomu nemá co říct.");
}

void TellCaptainAboutTheMatch(Game& game) {
    enum : TextNumber { WhoseFingernail = 246 };
    Tell(game, WhoseFingernail);
    RemoveItemFromSector(game, game.state.CurrentSector, Captain, Redraw::No);
    Remove(game, ManInDarkGlasses);
    AddItemToSector(game, sector::Hangar, ManInDarkGlasses, Redraw::No);
    AddItemToSector(game, sector::Hangar, Captain, Redraw::No);
    game.state.CaptainInformed = True;
}

void TalkToCaptain(Game& game) {
    enum : TextNumber { Greets = 98, SendsAway = 99, LeavesForTheArsenal = 133, LookAtTheBody = 252 };
    GameState& state = game.state;
    if (state.CorridorEventSeen == False && state.CaptainGreeted == False) {
        Tell(game, Greets);
        state.CaptainGreeted = True;
    } else if (state.ArsenalExamined == True && state.CaptainDismissed == False) {
        Tell(game, LeavesForTheArsenal);
        Remove(game, Captain);
        state.CaptainDismissed = True;
    } else if (state.DnaMatchFound == True && state.CaptainInformed == False) {
        TellCaptainAboutTheMatch(game);
    } else if (state.CaptainInformed == True && state.BodyFound == False) {
        Tell(game, NewsForTheHangar);
    } else {
        Tell(game, state.BodyFound == True ? LookAtTheBody : SendsAway);
    }
}

void TalkToWorker(Game& game) {
    enum : TextNumber { WhispersAboutTheCrate = 116, Grumbles = 117, WavesOn = 118, TerminalFirst = 119, FindsTheRecord = 120 };
    GameState& state = game.state;
    if (state.CorridorEventSeen == False) return TellFirstOrLater(game, &GameState::WorkerGreeted, Grumbles, WavesOn);
    if (state.CorridorEventSeen != True) return;
    switch (state.HangarTerminalState) {
        case HangarTerminalStage::Broken:
        case HangarTerminalStage::Opened:
        case HangarTerminalStage::DispenserFitted:
            return TellFirstOrLater(game, &GameState::WorkerWarned, WhispersAboutTheCrate, TerminalFirst);
        case HangarTerminalStage::Repaired:
            Tell(game, FindsTheRecord);
            RemoveItemFromSector(game, state.CurrentSector, Worker, Redraw::No);
            return Place(game, Manual);
        default: return;
    }
}

void AttendantOpensTheMeshDoor(Game& game) {
    enum : TextNumber { TakeWhatYouNeed = 121 };
    game.state.WireDoorUnlocked = True;
    Tell(game, TakeWhatYouNeed);
    game.state.Sectors[sector::Store].South = True;
    game.state.WireDoorOpen = True;
    RefreshSector(game);
}

void AskAttendantAboutTheOldDoor(Game& game) {
    enum : TextNumber { StuckForYears = 200, GladItWorks = 201, StillStuck = 202 };
    GameState& state = game.state;
    switch (state.OldDoorState) {
        case OldDoorStage::Untouched:
        case OldDoorStage::Examined: return TellFirstOrLater(game, &GameState::OldDoorAsked, StuckForYears, StillStuck);
        case OldDoorStage::Repaired:
        case OldDoorStage::ExaminedAgain: state.OldDoorState = OldDoorStage::Reported; return Tell(game, GladItWorks);
        default: return;
    }
}

void TalkToAttendant(Game& game) {
    enum : TextNumber { Greets = 59, WhatPart = 60, FindsACoil = 61, HandsOverTester = 149, NoSuchContainer = 206, FindsADrive = 221 };
    GameState& state = game.state;
    const bool replicatorNeedsCoil = state.ReplicatorState == ReplicatorStage::Examined || state.ReplicatorState == ReplicatorStage::Opened;
    if (replicatorNeedsCoil && state.CoilHandedOver == False) {
        Tell(game, FindsACoil);
        Place(game, Coil);
        state.CoilHandedOver = True;
    } else if (state.HangarTerminalState == HangarTerminalStage::Opened && state.WireDoorUnlocked == False) {
        AttendantOpensTheMeshDoor(game);
    } else if (state.DarkGlassesState == DarkGlassesStage::Met && state.TesterHandedOver == False && state.ArchiveFolder5Read == True) {
        state.TesterHandedOver = True;
        Tell(game, HandsOverTester);
        Place(game, Tester);
    } else if (state.BriefcaseSearched == True && state.OldDoorState < OldDoorStage::Reported) {
        AskAttendantAboutTheOldDoor(game);
    } else if (state.ContainerStoryState == ContainerStage::Found) {
        Tell(game, NoSuchContainer);
        state.ContainerStoryState = ContainerStage::AgentSent;
        AddItemToSector(game, sector::LabCorridor, ManInDarkGlasses, Redraw::No);
    } else if (state.ComputerState == ComputerStage::DriveMissing) {
        state.ComputerState = ComputerStage::DriveHandedOver;
        Tell(game, FindsADrive);
        Place(game, FloppyDrive);
    } else {
        TellFirstOrLater(game, &GameState::AttendantGreeted, Greets, WhatPart);
    }
}

}  // namespace

void DoTalk(Game& game, Item item) {
    switch (item) {
        case Technician: return TalkToTechnician(game);
        case Guard: return TellFirstOrLater(game, &GameState::GuardGreeted, 151, 152);
        case Scientist: return TalkToScientist(game);
        case MaintenanceMan: return TellFirstOrLater(game, &GameState::MaintenanceManGreeted, 144, 145);
        case Veteran: return TellFirstOrLater(game, &GameState::VeteranGreeted, 194, 195);
        case ManInDarkGlasses: return TalkToManInDarkGlasses(game);
        case Captain: return TalkToCaptain(game);
        case Worker: return TalkToWorker(game);
        case Attendant: return TalkToAttendant(game);
        default: return WriteOutput(game, "S tímto nemůžeš mluvit!");
    }
}
