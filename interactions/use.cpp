#include <algorithm>
#include <array>

#include "core/carrying.h"
#include "interactions/use_cases.h"
#include "interactions/verbs.h"

namespace {

using enum Item;

enum Whereabouts { Anywhere, Carried };

struct UseCase {
    Item Used;
    Whereabouts Where;
    Item Target;
    void (*Happens)(Game&);
};

// What is used, must it be carried, on what, what happens.
constexpr auto UseCases = std::to_array<UseCase>({
    {CabinTerminal, Anywhere, Self, [](Game& game) { StartTerminal(game, CabinTerminal); }},
    {LabTerminal, Anywhere, Self, [](Game& game) { StartTerminal(game, LabTerminal); }},
    {InnerRoomTerminal, Anywhere, Self, [](Game& game) { StartTerminal(game, InnerRoomTerminal); }},
    {CaptainTerminal, Anywhere, Self, [](Game& game) { StartTerminal(game, CaptainTerminal); }},
    {HangarTerminal, Anywhere, Self, StartHangarTerminal},
    {Keypad, Anywhere, Self, TypeOnKeypad},
    {DataCable, Carried, OperatingTerminal, ConnectCable},
    {Tester, Carried, OperatingTerminal, ConnectTester},
    {OperatingTerminal, Carried, Keypad, ReprogramKeypad},

    {CabinKey, Carried, CabinDoorInside, TurnKeyInside},
    {CabinKey, Carried, CabinDoorOutside, TurnKeyOutside},
    {SecurityCard, Carried, OfficeDoorOutside, SwipeCard},
    {SecurityCard, Carried, OfficeDoorInside, SwipeCard},
    {SecurityCard, Carried, Technician, ReturnCard},

    {Tools, Carried, Replicator, RepairReplicator},
    {Tools, Carried, Panel, UnscrewPanel},
    {Tools, Carried, HangarTerminal, RepairHangarTerminal},
    {Tools, Carried, OldDoor, RepairOldDoor},
    {Tools, Carried, BrokenTerminal, DismantleBrokenTerminal},
    {Coil, Carried, Replicator, FitCoil},
    {IonDispenser, Carried, HangarTerminal, FitIonDispenser},

    {Shower, Anywhere, Self, TakeShower},
    {ServingHatch, Anywhere, Self, TakeMeal},
    {Newspaper, Carried, MaintenanceMan, GiveNewspaper},
    {Authorisation, Carried, Guard, ShowAuthorisation},
    {Plans, Carried, Technician, GivePlans},
    {Documents, Carried, CaptainDesk, [](Game& game) { ReturnDocuments(game, Documents, game.state.DocumentsTaken); }},
    {Documents2, Carried, CaptainDesk, [](Game& game) { ReturnDocuments(game, Documents2, game.state.Documents2Taken); }},

    {Diskette, Carried, Computer, ReadDiskette},
    {FloppyDrive, Carried, Computer, FitFloppyDrive},
    {OldDiskette, Carried, Computer, ReadOldDiskette},
    {SampleVega, Carried, LabTerminal, [](Game& game) { LoadSample(game, SampleVega, 240); }},
    {SampleJunett, Carried, LabTerminal, [](Game& game) { LoadSample(game, SampleJunett, 241); }},
    {SampleDeyopel, Carried, LabTerminal, [](Game& game) { LoadSample(game, SampleDeyopel, 242); }},
    {SampleDebadon, Carried, LabTerminal, [](Game& game) { LoadSample(game, SampleDebadon, 243); }},
    {Fingernail, Carried, LabTerminal, LoadReference},
    {Cart, Carried, SeismicBomb, LoadBomb},
    {Cart, Carried, Teleport, PushCartOntoTeleport},
    {Detonator, Carried, Self, FireDetonator},
});

}  // namespace

void Refuse(Game& game) {
    WriteOutput(game, "Nezdá se, že by to mělo fungovat.");
}

void DoUse(Game& game, Item used, Item target) {
    const auto found = std::ranges::find_if(UseCases, [&](const UseCase& each) { return each.Used == used && each.Target == target; });
    const bool works = found != UseCases.end() && (found->Where == Anywhere || IsCarried(game.state, used));
    if (!works) return Refuse(game);
    found->Happens(game);
}
