#include <algorithm>

#include "core/carrying.h"
#include "core/stages.h"
#include "interactions/answers.h"
#include "interactions/plain_descriptions.h"
#include "interactions/verbs.h"

namespace {

using enum Item;

// The story waits until the player has read or seen the thing.
void TellAndNote(Game& game, TextNumber text, Boolean& seen) {
    Tell(game, text);
    seen = True;
}

void ExamineCabinWardrobe(Game& game) {
    enum : TextNumber { Closed = 20, Open = 21 };
    if (game.state.CabinWardrobeOpen == False) return Tell(game, Closed);
    Tell(game, Open);
    if (game.state.UniformPlaced != False) return;
    AddItemToSector(game, sector::Cabin, Uniform, Redraw::Yes);
    game.state.UniformPlaced = True;
}

void ExamineUniform(Game& game) {
    enum : TextNumber { Looks = 22, ScrapFallsOut = 72 };
    Tell(game, Looks);
    if (!FirstTime(game.state.UniformSearched)) return;
    Tell(game, ScrapFallsOut);
    AddItemToSector(game, sector::Cabin, ScrapOfPaper, Redraw::Yes);
}

void ExamineBathroomCupboard(Game& game) {
    enum : TextNumber { Closed = 31, Open = 32 };
    Tell(game, game.state.CupboardOpen == True ? Open : Closed);
}

void ExamineReplicator(Game& game) {
    enum : TextNumber { Looks = 38, CoilBurnt = 39, Works = 40, CoilMissing = 44, CoilLoose = 45 };
    Tell(game, Looks);
    switch (game.state.ReplicatorState) {
        case ReplicatorStage::Broken:
        case ReplicatorStage::Examined:
            Tell(game, CoilBurnt);
            game.state.ReplicatorState = ReplicatorStage::Examined;
            return;
        case ReplicatorStage::Opened: return Tell(game, CoilMissing);
        case ReplicatorStage::CoilFitted: return Tell(game, CoilLoose);
        case ReplicatorStage::Repaired: return Tell(game, Works);
        default: return;
    }
}

void ExaminePlasmaSamples(Game& game) {
    enum : TextNumber { Looks = 48, FourNamesFound = 232 };
    Tell(game, Looks);
    if (game.state.OldDisketteUsed != True || !FirstTime(game.state.SamplesFound)) return;
    Tell(game, FourNamesFound);
    for (const Item sample : {SampleJunett, SampleVega, SampleDeyopel}) {
        AddItemToSector(game, game.state.CurrentSector, sample, Redraw::No);
    }
    Place(game, SampleDebadon);
}

// Whether the item is carried or lies in any sector. A thing that was found once must not be made a second time.
bool IsInTheGame(const GameState& state, Item item) {
    return IsCarried(state, item) ||
           std::ranges::any_of(state.Sectors.All(), [&](const SectorRecord& each) { return HoldsItem(each, item); });
}

void ExamineWasteBin(Game& game) {
    enum : TextNumber { Looks = 50, DisketteInside = 226 };
    Tell(game, Looks);
    if (game.state.BinHintGiven != True) return;
    game.state.ComputerState = ComputerStage::OldDisketteFound;
    Tell(game, DisketteInside);
    if (game.state.OldDisketteUsed == False && !IsInTheGame(game.state, OldDiskette)) Place(game, OldDiskette);
}

void ExamineBriefcase(Game& game) {
    enum : TextNumber { Looks = 186, PapersInside = 192 };
    Tell(game, Looks);
    if (game.state.BriefcaseOpen != True || game.state.BriefcaseSearched != False) return;
    Tell(game, PapersInside);
    AddItemToSector(game, sector::DiningHall, Veteran, Redraw::No);
    game.state.StoreMessageState = MessageState::Waiting;
    game.state.BriefcaseSearched = True;
}

void ExamineInnerRoomWardrobe(Game& game) {
    enum : TextNumber { Looks = 189, WeaponsInside = 190 };
    Tell(game, Looks);
    if (game.state.InnerRoomWardrobeOpen == True) Tell(game, WeaponsInside);
}

void ExamineMaintenanceMan(Game& game) {
    enum : TextNumber { Looks = 142, AuthorisationInPocket = 143 };
    Tell(game, Looks);
    if (!FirstTime(game.state.MaintenanceManSearched)) return;
    Tell(game, AuthorisationInPocket);
    Place(game, Authorisation);
}

void ExamineSeismicBomb(Game& game) {
    enum : TextNumber { Looks = 213, FingernailInCollar = 214 };
    Tell(game, Looks);
    if (!FirstTime(game.state.BombExamined)) return;
    Tell(game, FingernailInCollar);
    Place(game, Fingernail);
}

void ExamineOfficeWardrobe(Game& game) {
    enum : TextNumber { Looks = 165, OperatingTerminalInside = 172 };
    Tell(game, Looks);
    if (game.state.OperatingTerminalTaken != False) return;
    Tell(game, OperatingTerminalInside);
    if (!IsInTheGame(game.state, OperatingTerminal)) Place(game, OperatingTerminal);
}

void ExamineOperatingTerminal(Game& game) {
    enum : TextNumber { Looks = 168, Complete = 178, OnlyCable = 179, OnlyTester = 180 };
    Tell(game, Looks);
    const Boolean cable = game.state.CableConnected;
    const Boolean tester = game.state.TesterConnected;
    if (cable == True && tester == True) return Tell(game, Complete);
    if (cable == True && tester == False) return Tell(game, OnlyCable);
    if (cable == False && tester == True) return Tell(game, OnlyTester);
}

void ExamineCaptainWardrobe(Game& game) {
    enum : TextNumber { Looks = 91, DisketteInside = 216 };
    Tell(game, Looks);
    if (game.state.CaptainWardrobeOpen != True) return;
    if (game.state.CaptainAlertState == CaptainAlertStage::OnTheBridge) {
        game.state.CaptainAlertState = CaptainAlertStage::DisketteFound;
        Tell(game, DisketteInside);
        return Place(game, Diskette);
    }
    WriteOutput(game,
                "Ve skříni je mnoho různých administrativních věcí. Na disketách je zde například seznam všech lidí na palubě. "
                "Kromě toho je zde také velké množství různých papírů a lejster.");
}

void ExamineCaptainDesk(Game& game) {
    enum : TextNumber { Looks = 93, FirstPapers = 134, SecondPapers = 135 };
    GameState& state = game.state;
    Tell(game, Looks);
    if (state.CaptainDismissed != True || state.BriefcaseSearched != False) return;
    if (state.DocumentsTaken == False) {
        Tell(game, FirstPapers);
        state.DocumentsTaken = True;
        Place(game, Documents);
    } else if (state.Documents2Taken == False) {
        Tell(game, SecondPapers);
        state.Documents2Taken = True;
        Place(game, Documents2);
    }
}

void ExamineHangarTerminal(Game& game) {
    enum : TextNumber { Looks = 102, Dead = 109, Opened = 114, CoverOff = 115 };
    Tell(game, Looks);
    switch (game.state.HangarTerminalState) {
        case HangarTerminalStage::Broken: return Tell(game, Dead);
        case HangarTerminalStage::Opened: return Tell(game, Opened);
        case HangarTerminalStage::DispenserFitted: return Tell(game, CoverOff);
        default: return;
    }
}

void ExaminePersonnel(Game& game) {
    enum : TextNumber { Looks = 105, ManFallsDead = 248 };
    Tell(game, Looks);
    if (game.state.CaptainInformed != True || !FirstTime(game.state.BodyFound)) return;
    Tell(game, ManFallsDead);
    Place(game, DeadVega);
}

void ExamineCart(Game& game) {
    enum : TextNumber { Looks = 107, BombOnIt = 259 };
    Tell(game, Looks);
    if (game.state.BombOnCart == True) Tell(game, BombOnIt);
}

void ExamineDeadVega(Game& game) {
    enum : TextNumber { Looks = 249, ThingsOnHim = 250 };
    Tell(game, Looks);
    if (!FirstTime(game.state.BodyExamined)) return;
    Tell(game, ThingsOnHim);
    AddItemToSector(game, game.state.CurrentSector, Detonator, Redraw::No);
    Place(game, Message);
}

void ExamineOldDoor(Game& game) {
    enum : TextNumber { Looks = 124, ControlJammed = 197, ControlMended = 199 };
    Tell(game, Looks);
    if (game.state.BriefcaseSearched == True && game.state.OldDoorState == OldDoorStage::Untouched) {
        Tell(game, ControlJammed);
        game.state.OldDoorState = OldDoorStage::Examined;
    } else if (game.state.OldDoorState == OldDoorStage::Repaired) {
        game.state.OldDoorState = OldDoorStage::ExaminedAgain;
        Tell(game, ControlMended);
    }
}

void ExamineBrokenTerminal(Game& game) {
    enum : TextNumber { Looks = 125, DispenserInside = 129 };
    Tell(game, Looks);
    if (game.state.BrokenTerminalState != BrokenTerminalStage::Opened) return;
    Tell(game, DispenserInside);
    game.state.BrokenTerminalState = BrokenTerminalStage::DispenserFound;
    Place(game, IonDispenser);
}

}  // namespace

void DoExamine(Game& game, Item item) {
    if (const auto text = PlainDescription(item)) return Tell(game, *text);
    switch (item) {
        case CabinWardrobe: return ExamineCabinWardrobe(game);
        case Uniform: return ExamineUniform(game);
        case BathroomCupboard: return ExamineBathroomCupboard(game);
        case Replicator: return ExamineReplicator(game);
        case PlasmaSamples: return ExaminePlasmaSamples(game);
        case WasteBin: return ExamineWasteBin(game);
        case Briefcase: return ExamineBriefcase(game);
        case InnerRoomWardrobe: return ExamineInnerRoomWardrobe(game);
        case MaintenanceMan: return ExamineMaintenanceMan(game);
        case SeismicBomb: return ExamineSeismicBomb(game);
        case OfficeWardrobe: return ExamineOfficeWardrobe(game);
        case OperatingTerminal: return ExamineOperatingTerminal(game);
        case CaptainWardrobe: return ExamineCaptainWardrobe(game);
        case CaptainDesk: return ExamineCaptainDesk(game);
        case Documents: return TellAndNote(game, 136, game.state.DocumentsRead);
        case Documents2: return TellAndNote(game, 137, game.state.Documents2Read);
        case HangarTerminal: return ExamineHangarTerminal(game);
        case HangarPersonnel: return ExaminePersonnel(game);
        case Message: return TellAndNote(game, 254, game.state.ReportRead);
        case Cart: return ExamineCart(game);
        case DeadVega: return ExamineDeadVega(game);
        case Arsenal: return TellAndNote(game, 123, game.state.ArsenalExamined);
        case OldDoor: return ExamineOldDoor(game);
        case BrokenTerminal: return ExamineBrokenTerminal(game);
        default: return;  // nothing to see
    }
}
