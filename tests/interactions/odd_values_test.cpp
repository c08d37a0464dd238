// A loaded game may hold any number where the story keeps True, False or a stage. Of a condition that names one of them, such a number
// is neither: in a game whose every flag is 7 each rule is tried with its own flags, and then with one of these odd again at a time.
#include <algorithm>
#include <variant>

#include "core/carrying.h"
#include "core/sector_items.h"
#include "core/stages.h"
#include "core/verbs.h"
#include "tests/play.h"

namespace {

using enum Item;
using State = GameState;
using Answer = std::variant<int, std::string_view>;  // a story text by its number, or a message
using Conditions = std::vector<std::pair<std::int16_t State::*, std::int16_t>>;

constexpr std::int16_t Odd = 7;

struct Deed {
    std::int16_t Verb;
    Item Object;
    Item Target = Self;
};

struct Rule {
    Deed Does;
    Conditions When;
    Answer Says;
};

const std::vector<Rule> Rules{
    {{verb::Examine, CabinWardrobe}, {{&State::CabinWardrobeOpen, False}}, 20},
    {{verb::Examine, CabinWardrobe}, {{&State::UniformPlaced, False}}, sector::Cabin},  // the view with what was found
    {{verb::Examine, Uniform}, {{&State::UniformSearched, False}}, 72},
    {{verb::Examine, BathroomCupboard}, {{&State::CupboardOpen, True}}, 32},
    {{verb::Examine, Replicator}, {{&State::ReplicatorState, ReplicatorStage::Broken}}, 39},
    {{verb::Examine, Replicator}, {{&State::ReplicatorState, ReplicatorStage::Examined}}, 39},
    {{verb::Examine, Replicator}, {{&State::ReplicatorState, ReplicatorStage::Opened}}, 44},
    {{verb::Examine, Replicator}, {{&State::ReplicatorState, ReplicatorStage::CoilFitted}}, 45},
    {{verb::Examine, Replicator}, {{&State::ReplicatorState, ReplicatorStage::Repaired}}, 40},
    {{verb::Examine, PlasmaSamples}, {{&State::OldDisketteUsed, True}, {&State::SamplesFound, False}}, 232},
    {{verb::Examine, WasteBin}, {{&State::BinHintGiven, True}}, 226},
    {{verb::Examine, Briefcase}, {{&State::BriefcaseOpen, True}, {&State::BriefcaseSearched, False}}, 192},
    {{verb::Examine, InnerRoomWardrobe}, {{&State::InnerRoomWardrobeOpen, True}}, 190},
    {{verb::Examine, MaintenanceMan}, {{&State::MaintenanceManSearched, False}}, 143},
    {{verb::Examine, SeismicBomb}, {{&State::BombExamined, False}}, 214},
    {{verb::Examine, OfficeWardrobe}, {{&State::OperatingTerminalTaken, False}}, 172},
    {{verb::Examine, OperatingTerminal}, {{&State::CableConnected, True}, {&State::TesterConnected, True}}, 178},
    {{verb::Examine, OperatingTerminal}, {{&State::CableConnected, True}, {&State::TesterConnected, False}}, 179},
    {{verb::Examine, OperatingTerminal}, {{&State::CableConnected, False}, {&State::TesterConnected, True}}, 180},
    {{verb::Examine, CaptainWardrobe},
     {{&State::CaptainAlertState, CaptainAlertStage::OnTheBridge}, {&State::CaptainWardrobeOpen, True}},
     216},
    {{verb::Examine, CaptainDesk},
     {{&State::CaptainDismissed, True}, {&State::BriefcaseSearched, False}, {&State::DocumentsTaken, False}},
     134},
    {{verb::Examine, CaptainDesk},
     {{&State::CaptainDismissed, True}, {&State::BriefcaseSearched, False}, {&State::Documents2Taken, False}},
     135},
    {{verb::Examine, HangarTerminal}, {{&State::HangarTerminalState, HangarTerminalStage::Broken}}, 109},
    {{verb::Examine, HangarTerminal}, {{&State::HangarTerminalState, HangarTerminalStage::Opened}}, 114},
    {{verb::Examine, HangarTerminal}, {{&State::HangarTerminalState, HangarTerminalStage::DispenserFitted}}, 115},
    {{verb::Examine, HangarPersonnel}, {{&State::CaptainInformed, True}, {&State::BodyFound, False}}, 248},
    {{verb::Examine, Cart}, {{&State::BombOnCart, True}}, 259},
    {{verb::Examine, DeadVega}, {{&State::BodyExamined, False}}, 250},
    {{verb::Examine, OldDoor}, {{&State::BriefcaseSearched, True}, {&State::OldDoorState, OldDoorStage::Untouched}}, 197},
    {{verb::Examine, OldDoor}, {{&State::OldDoorState, OldDoorStage::Repaired}}, 199},
    {{verb::Examine, BrokenTerminal}, {{&State::BrokenTerminalState, BrokenTerminalStage::Opened}}, 129},

    {{verb::Talk, Technician}, {{&State::CardHandedOver, False}}, 160},
    {{verb::Talk, Guard}, {{&State::GuardGreeted, False}}, 151},
    {{verb::Talk, Scientist}, {{&State::ScientistAsked, False}}, 57},
    {{verb::Talk, Scientist},
     {{&State::ReplicatorState, ReplicatorStage::Repaired}, {&State::ScientistThanked, False}, {&State::HangarEventSeen, False}},
     58},
    {{verb::Talk, MaintenanceMan}, {{&State::MaintenanceManGreeted, False}}, 144},
    {{verb::Talk, Veteran}, {{&State::VeteranGreeted, False}}, 194},
    {{verb::Talk, ManInDarkGlasses}, {{&State::DarkGlassesState, DarkGlassesStage::InDiningHall}}, 140},
    {{verb::Talk, ManInDarkGlasses}, {{&State::ContainerStoryState, ContainerStage::AgentSent}}, 208},
    {{verb::Talk, ManInDarkGlasses}, {{&State::ComputerState, ComputerStage::DisketteRead}, {&State::BinHintGiven, False}}, 225},
    {{verb::Talk, ManInDarkGlasses},
     {{&State::ComputerState, ComputerStage::OldDisketteFound}, {&State::DnaMatchFound, False}, {&State::DarkGlassesAsked, False}},
     228},
    {{verb::Talk, ManInDarkGlasses}, {{&State::DnaMatchFound, True}, {&State::CaptainInformed, False}}, 245},
    {{verb::Talk, ManInDarkGlasses}, {{&State::CaptainInformed, True}, {&State::BodyFound, False}}, 247},
    {{verb::Talk, ManInDarkGlasses}, {{&State::BodyFound, True}, {&State::ReportRead, False}}, 251},
    {{verb::Talk, ManInDarkGlasses}, {{&State::ReportRead, True}}, 255},
    {{verb::Talk, Captain}, {{&State::CorridorEventSeen, False}, {&State::CaptainGreeted, False}}, 98},
    {{verb::Talk, Captain}, {{&State::ArsenalExamined, True}, {&State::CaptainDismissed, False}}, 133},
    {{verb::Talk, Captain}, {{&State::DnaMatchFound, True}, {&State::CaptainInformed, False}}, 246},
    {{verb::Talk, Captain}, {{&State::CaptainInformed, True}, {&State::BodyFound, False}}, 247},
    {{verb::Talk, Captain}, {{&State::BodyFound, True}}, 252},
    {{verb::Talk, Worker}, {{&State::CorridorEventSeen, False}, {&State::WorkerGreeted, False}}, 117},
    {{verb::Talk, Worker}, {{&State::CorridorEventSeen, False}}, 118},
    {{verb::Talk, Worker},
     {{&State::CorridorEventSeen, True}, {&State::HangarTerminalState, HangarTerminalStage::Broken}, {&State::WorkerWarned, False}},
     116},
    {{verb::Talk, Worker}, {{&State::CorridorEventSeen, True}, {&State::HangarTerminalState, HangarTerminalStage::DispenserFitted}}, 119},
    {{verb::Talk, Worker}, {{&State::CorridorEventSeen, True}, {&State::HangarTerminalState, HangarTerminalStage::Repaired}}, 120},
    {{verb::Talk, Attendant}, {{&State::ReplicatorState, ReplicatorStage::Examined}, {&State::CoilHandedOver, False}}, 61},
    {{verb::Talk, Attendant}, {{&State::ReplicatorState, ReplicatorStage::Opened}, {&State::CoilHandedOver, False}}, 61},
    {{verb::Talk, Attendant}, {{&State::HangarTerminalState, HangarTerminalStage::Opened}, {&State::WireDoorUnlocked, False}}, 121},
    {{verb::Talk, Attendant},
     {{&State::DarkGlassesState, DarkGlassesStage::Met}, {&State::TesterHandedOver, False}, {&State::ArchiveFolder5Read, True}},
     149},
    {{verb::Talk, Attendant},
     {{&State::BriefcaseSearched, True}, {&State::OldDoorState, OldDoorStage::Untouched}, {&State::OldDoorAsked, False}},
     200},
    {{verb::Talk, Attendant}, {{&State::BriefcaseSearched, True}, {&State::OldDoorState, OldDoorStage::Examined}}, 202},
    {{verb::Talk, Attendant}, {{&State::BriefcaseSearched, True}, {&State::OldDoorState, OldDoorStage::ExaminedAgain}}, 201},
    {{verb::Talk, Attendant}, {{&State::ContainerStoryState, ContainerStage::Found}}, 206},
    {{verb::Talk, Attendant}, {{&State::ComputerState, ComputerStage::DriveMissing}}, 221},
    {{verb::Talk, Attendant}, {{&State::AttendantGreeted, False}}, 59},

    {{verb::Open, CabinDoorInside}, {{&State::CabinDoorUnlocked, False}}, "Dveře jsou zamčené!"},
    {{verb::Open, CabinDoorInside}, {{&State::CabinDoorOpen, True}}, "Dveře jsou již otevřené!"},
    {{verb::Open, KeypadDoorInside}, {{&State::CalledAwayState, CalledAwayStage::Inside}}, 183},
    {{verb::Open, CaptainDoorOutside},
     {{&State::CorridorEventSeen, True},
      {&State::ArsenalExamined, False},
      {&State::HangarTerminalState, HangarTerminalStage::DispenserFitted}},
     79},
    {{verb::Open, WireDoorInside}, {{&State::WireDoorUnlocked, False}}, 70},
    {{verb::Open, OldDoor}, {{&State::OldDoorState, OldDoorStage::Examined}}, 203},
    {{verb::Open, OldDoor}, {{&State::OldDoorOpen, True}}, "Dveře jsou již otevřené!"},
    {{verb::Open, OldDoor}, {{&State::ContainerStoryState, ContainerStage::Hidden}}, 204},
    {{verb::Open, CaptainWardrobe}, {{&State::CaptainDismissed, False}}, 100},
    {{verb::Open, CaptainWardrobe}, {{&State::CaptainWardrobeOpen, True}}, "Skříň je již otevřená!"},
    {{verb::Close, CabinDoorInside}, {{&State::CabinDoorOpen, False}}, "Dveře jsou již zavřené!"},
    {{verb::Close, OldDoor}, {{&State::OldDoorOpen, False}}, "Dveře jsou již zavřené!"},
    {{verb::Close, CabinWardrobe}, {{&State::CabinWardrobeOpen, False}}, "Skříň je již zavřená!"},
    {{verb::Close, OfficeWardrobe}, {{&State::OperatingTerminalTaken, False}}, sector::Cabin},  // the view without the terminal

    {{verb::Take, Authorisation},
     {{&State::NewspaperGiven, True}},
     "Muž je do novin hodně zabraný, takže si ani nevšiml, že mu někdo něco vytahuje z kapsy."},
    {{verb::Take, Cart}, {{&State::CartReleased, True}}, 256},

    {{verb::Use, CabinKey, CabinDoorInside},
     {{&State::CabinDoorUnlocked, True}, {&State::CabinDoorOpen, False}},
     "Klíčem jsi dveře zamkl..."},
    {{verb::Use, CabinKey, CabinDoorInside},
     {{&State::LabMessageState, MessageState::None}},
     "A hele! Na terminál zrovna přišla nějaká zpráva! Od koho asi bude...?"},
    {{verb::Use, SecurityCard, OfficeDoorInside}, {{&State::OfficeDoorUnlocked, False}}, 163},
    {{verb::Use, SecurityCard, Technician}, {{&State::OperatingTerminalBrought, False}}, 175},
    {{verb::Use, Tools, Replicator}, {{&State::ReplicatorState, ReplicatorStage::CoilFitted}}, 46},
    {{verb::Use, Tools, Panel}, {{&State::ContainerStoryState, ContainerStage::AgentSent}}, "To není moc dobrý nápad..."},
    {{verb::Use, Tools, Panel}, {{&State::ContainerStoryState, ContainerStage::AgentTold}, {&State::BridgeAlertReady, False}}, 212},
    {{verb::Use, Tools, HangarTerminal}, {{&State::HangarTerminalState, HangarTerminalStage::DispenserFitted}}, 112},
    {{verb::Use, Tools, OldDoor}, {{&State::OldDoorState, OldDoorStage::Examined}}, 198},
    {{verb::Use, Tools, BrokenTerminal}, {{&State::BrokenTerminalState, BrokenTerminalStage::DispenserFound}}, 130},
    {{verb::Use, Coil, Replicator}, {{&State::ReplicatorState, ReplicatorStage::Opened}}, 47},
    {{verb::Use, IonDispenser, HangarTerminal}, {{&State::HangarTerminalState, HangarTerminalStage::Opened}}, 111},
    {{verb::Use, HangarTerminal}, {}, 132},
    {{verb::Use, Shower}, {{&State::ShowerUsed, False}}, 55},
    {{verb::Use, ServingHatch}, {{&State::HatchUsed, True}}, 81},
    {{verb::Use, OperatingTerminal, Keypad}, {{&State::CableConnected, False}}, "Nezdá se, že by to mělo fungovat."},
    {{verb::Use, OperatingTerminal, Keypad}, {{&State::TesterConnected, False}}, "Nezdá se, že by to mělo fungovat."},
    {{verb::Use, OperatingTerminal, Keypad},
     {{&State::ContainerStoryState, ContainerStage::AgentTold}, {&State::KeypadDisabled, False}},
     211},
    {{verb::Use, OperatingTerminal, Keypad}, {{&State::KeypadDisabled, True}}, "Raději ne..."},
    {{verb::Use, Diskette, Computer}, {{&State::ComputerState, ComputerStage::DriveFitted}}, 224},
    {{verb::Use, SampleVega, LabTerminal}, {{&State::DnaSampleLoaded, True}}, 239},
    {{verb::Use, Fingernail, LabTerminal}, {{&State::OldDisketteUsed, False}}, "Nezdá se, že by to mělo fungovat."},
    {{verb::Use, Cart, Teleport}, {{&State::BombOnCart, False}}, 258},
    {{verb::Use, Detonator}, {{&State::CartOnTeleport, False}}, 261},
};

struct Arrival {
    std::int16_t From;
    std::string_view Way;
    Conditions When;
    Answer Says;
};

const std::vector<Arrival> Arrivals{
    {sector::EastEnd, "na východ", {{&State::ReplicatorState, ReplicatorStage::Repaired}, {&State::HangarEventSeen, False}}, 77},
    {sector::Corridor, "na východ", {{&State::HangarEventSeen, True}, {&State::CorridorEventSeen, False}}, 78},
    {sector::Corridor, "na východ", {{&State::DocumentsTaken, True}}, 138},
    {sector::Corridor, "na východ", {{&State::Documents2Taken, True}}, 138},
    {sector::Crossing, "na sever", {{&State::DarkGlassesState, DarkGlassesStage::Gone}}, 141},
    {sector::Crossing, "na sever", {{&State::CalledAwayState, CalledAwayStage::Called}}, 184},
    {sector::Crossing, "na sever", {{&State::Story207Shown, False}, {&State::ContainerStoryState, ContainerStage::AgentSent}}, 207},
    {sector::Corridor, "na východ", {{&State::CaptainAlertState, CaptainAlertStage::Alerted}}, 215},
    {sector::Corridor,
     "na východ",
     {{&State::CaptainAlertState, CaptainAlertStage::DisketteFound}, {&State::CaptainWardrobeOpen, True}},
     217},
    {sector::Corridor,
     "na východ",
     {{&State::CaptainAlertState, CaptainAlertStage::DisketteFound}, {&State::CaptainWardrobeOpen, False}},
     218},
    {sector::Corridor,
     "na západ",
     {{&State::DocumentsRead, True}, {&State::Documents2Read, True}, {&State::DarkGlassesState, DarkGlassesStage::Absent}},
     "Hned jak jsi opustil kapitánovu kajutu, objevil se kapitán a vešel do své kajuty."},
};

class OddValues : public testing::Test {
protected:
    bool Hears(const Answer& answer) const {
        if (const auto* text = std::get_if<int>(&answer)) return std::ranges::count(play.Told(), *text) > 0;
        return std::ranges::count(play.Said(), std::get<std::string_view>(answer)) > 0;
    }

    void Begin(std::int16_t sector, Item carried) {
        play.State() = start;
        for (const StoryFlag& flag : StoryFlags()) play.State().*flag.Value = Odd;
        play.MoveTo(sector);
        play.State().Inventory[0] = NumberOf(carried);
        RefreshInventoryList(play.TheGame());
    }

    void Act(const Deed& deed) {
        if (deed.Verb != verb::Use) play.Place(deed.Object, sector::Cabin);
        if (deed.Target != Self) play.Place(deed.Target, sector::Cabin);
        play.Choose(deed.Verb);
        play.ChooseObject(deed.Object);
        if (deed.Verb == verb::Use) play.ChooseTarget(deed.Target);
        play.Proceed();
    }

    // `leaveOut` is the condition that stays odd.
    void Try(const Rule& rule, std::size_t leaveOut) {
        Begin(sector::Cabin, rule.Does.Verb == verb::Use ? rule.Does.Object : Nothing);
        Set(rule.When, leaveOut);
        Act(rule.Does);
    }

    void Try(const Arrival& arrival, std::size_t leaveOut) {
        Begin(arrival.From, Diskette);
        Set(arrival.When, leaveOut);
        play.Go(arrival.Way);
    }

    template <typename Row>
    void Check(const std::vector<Row>& rows) {
        for (const Row& row : rows) {
            SCOPED_TRACE(testing::PrintToString(row.Says));
            Try(row, row.When.size());
            EXPECT_TRUE(Hears(row.Says)) << play.LastSaid();
            for (std::size_t odd = 0; odd < row.When.size(); ++odd) {
                Try(row, odd);
                EXPECT_FALSE(Hears(row.Says)) << "although condition " << odd << " is odd";
            }
        }
    }

    Play play = Play::InCabin();

private:
    void Set(const Conditions& when, std::size_t leaveOut) {
        for (std::size_t i = 0; i < when.size(); ++i) {
            if (i != leaveOut) play.State().*when[i].first = when[i].second;
        }
    }

    const GameState start = play.State();
};

TEST_F(OddValues, AreNeitherTrueNorFalseNorAStage) {
    Check(Rules);
    Check(Arrivals);
}

TEST_F(OddValues, LeaveTheWorkerAndTheAttendantWithoutAWord) {
    Begin(sector::Cabin, Nothing);
    Act({verb::Talk, Worker});
    EXPECT_TRUE(play.Said().empty());
    Begin(sector::Cabin, Nothing);
    play.State().BriefcaseSearched = True;
    play.State().OldDoorState = -1;
    Act({verb::Talk, Attendant});
    EXPECT_TRUE(play.Said().empty());
}

}  // namespace
