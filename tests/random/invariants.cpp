#include "tests/random/invariants.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

#include "core/stages.h"
#include "core/verbs.h"
#include "interactions/doors.h"
#include "saves/save_format.h"

namespace {

struct Stage {
    std::int16_t GameState::*Value;
    std::int16_t Last;
};

// Every other flag is True or False, but for the sample in the terminal's vessel.
constexpr auto Stages = std::to_array<Stage>({
    {&GameState::LabMessageState, MessageState::Read},
    {&GameState::ReplicatorState, ReplicatorStage::Repaired},
    {&GameState::HangarTerminalState, HangarTerminalStage::Repaired},
    {&GameState::BrokenTerminalState, BrokenTerminalStage::Closed},
    {&GameState::DarkGlassesState, DarkGlassesStage::Met},
    {&GameState::CalledAwayState, CalledAwayStage::Gone},
    {&GameState::CalledAwayDestination, 3},
    {&GameState::StoreMessageState, MessageState::Read},
    {&GameState::OldDoorState, OldDoorStage::Reported},
    {&GameState::ContainerStoryState, ContainerStage::AgentTold},
    {&GameState::CaptainAlertState, CaptainAlertStage::Returned},
    {&GameState::ComputerState, ComputerStage::OldDisketteFound},
});

constexpr std::array Exits{&SectorRecord::North, &SectorRecord::South, &SectorRecord::West, &SectorRecord::East};

const SectorTable& FirstMap() {
    static const SectorTable map = [] {
        SectorTable built;
        BuildSectors(built);
        return built;
    }();
    return map;
}

void ExpectSoundFlags(const GameState& state) {
    for (const StoryFlag& flag : StoryFlags) {
        const auto stage = std::ranges::find(Stages, flag.Value, &Stage::Value);
        const std::int16_t value = state.*flag.Value;
        if (stage != Stages.end()) {
            EXPECT_TRUE(value >= 0 && value <= stage->Last) << flag.Name << " is " << value;
        } else if (flag.Value != &GameState::DnaSampleItem) {
            EXPECT_TRUE(value == True || value == False) << flag.Name << " is " << value;
        }
    }
    for (const std::int16_t message : state.TerminalMailbox) EXPECT_TRUE(message >= 0 && message <= 4) << "message " << message;
    EXPECT_TRUE(state.DoorCode.empty() || state.DoorCode.size() == 7) << state.DoorCode;
}

void ExpectItemsInOnePlace(const GameState& state) {
    std::set<std::int16_t> seen;
    const auto expectNew = [&](std::int16_t item, std::string_view place, int number) {
        EXPECT_FALSE(ItemName(Item{item}).empty()) << item << " in " << place << number;
        EXPECT_TRUE(seen.insert(item).second) << ItemName(Item{item}) << " (" << item << ") a second time in " << place << number;
    };
    int slot = 0;
    bool ended = false;
    for (const std::int16_t item : state.Inventory) {
        EXPECT_FALSE(ended && item != 0) << "a gap in the inventory before slot " << slot;
        ended = ended || item == 0;
        if (!ended) expectNew(item, "slot ", slot++);
    }
    for (int sector = 1; sector <= LastSector; ++sector) {
        for (const std::int16_t item : state.Sectors[static_cast<std::int16_t>(sector)].Items) expectNew(item, "sector ", sector);
    }
}

bool HasDoor(std::int16_t sector, Boolean SectorRecord::*exit) {
    return std::ranges::any_of(Doors(), [&](const Door& door) {
        return std::ranges::any_of(door.Sides, [&](const DoorSide& side) { return side.Sector == sector && side.Exit == exit; });
    });
}

void ExpectSoundMap(const GameState& state) {
    for (std::int16_t sector = 1; sector <= LastSector; ++sector) {
        const SectorRecord& first = FirstMap()[sector];
        const SectorRecord& now = state.Sectors[sector];
        EXPECT_TRUE(now.X == first.X && now.Y == first.Y && now.TextNo == first.TextNo) << "sector " << sector << " has moved";
        for (const auto exit : Exits) {
            EXPECT_TRUE(HasDoor(sector, exit) || now.*exit == first.*exit) << "a wall or a passage of sector " << sector;
        }
    }
    if (state.GameStage != GameStage::Running) return;
    EXPECT_TRUE(state.CurrentSector >= 1 && state.CurrentSector <= LastSector) << state.CurrentSector;
    EXPECT_EQ(state.CurrentSector, FindSector(state.Sectors, state.PlayerX, state.PlayerY));
}

std::vector<std::string> NamesOf(std::span<const std::int16_t> items) {
    std::vector<std::string> names;
    for (const std::int16_t item : items) {
        if (item != 0) names.emplace_back(ItemName(Item{item}));
    }
    return names;
}

void ExpectSoundFocus(const Game& game, const ui::MemoryDesktop& desktop) {
    const ui::Windows& windows = game.windows;
    EXPECT_TRUE(windows.Form1.Window.Visible && windows.Form5.Window.Visible);
    for (const ui::Form* panel : {&windows.Form2.Window, &windows.Form3.Window, &windows.Form4.Window}) {
        EXPECT_EQ(panel->Visible, panel == desktop.Modal()) << panel->Layout.Name;
    }
    const ui::Form* expected = desktop.Modal() == nullptr ? &windows.Form1.Window : desktop.Modal();
    EXPECT_EQ(windows.Active, expected);
    EXPECT_TRUE(expected != &windows.Form1.Window || expected->Focused == ui::Control(&game.windows.Form1.Text2));
}

}  // namespace

void ExpectSoundState(const GameState& state) {
    ExpectSoundFlags(state);
    ExpectItemsInOnePlace(state);
    ExpectSoundMap(state);
}

void ExpectShutDoorsToStopThePlayer(const GameState& state) {
    for (const Door& door : Doors()) {
        // The bathroom door and the mesh door do not fall shut behind the player, so one side's exit may be open when the other side is
        // closed.
        if (door.Open == &GameState::BathroomDoorOpen || door.Open == &GameState::WireDoorOpen) continue;
        for (const DoorSide& side : door.Sides) {
            EXPECT_TRUE(state.Sectors[side.Sector].*side.Exit == False || state.*door.Open == True) << "a door of sector " << side.Sector;
        }
    }
}

void ExpectOnlyProgress(const GameState& before, const GameState& now) {
    EXPECT_LE(before.GameStage, now.GameStage);
    for (const Stage& stage : Stages) EXPECT_LE(before.*stage.Value, now.*stage.Value) << "stage " << &stage - Stages.data();
}

void ExpectTheSame(const GameState& before, const GameState& now) {
    constexpr SaveKeys Keys{.Name = 0, .DoorCode = 0};
    EXPECT_EQ(EncodeSave(before, "", Keys), EncodeSave(now, "", Keys));
    for (const auto global : {&GameState::CommandVerb, &GameState::CommandObject, &GameState::CommandTarget, &GameState::GameStage,
                              &GameState::GameOver, &GameState::TerminalLoggedIn}) {
        EXPECT_EQ(before.*global, now.*global);
    }
}

void ExpectSoundWindows(const Game& game, const ui::MemoryDesktop& desktop) {
    const ui::MainWindow& form = game.windows.Form1;
    if (!desktop.Running()) {
        for (const ui::Form* each : game.windows.All) EXPECT_FALSE(each->Visible) << each->Layout.Name;
        return;
    }
    // When the panel has just been hidden, the command that opened it has not run to its end yet.
    if (desktop.Modal() != nullptr && !desktop.Modal()->Visible) return;

    ExpectSoundFocus(game, desktop);
    EXPECT_EQ(form.List2[0].Entries().size(), 13U);
    const std::vector<std::string> carried = NamesOf(game.state.Inventory);
    EXPECT_EQ(form.List1.Entries(), carried.empty() ? std::vector<std::string>{"---"} : carried);
    EXPECT_EQ(form.Text1.Visible(), game.state.GameStage != GameStage::Title);
    EXPECT_EQ(form.Text1.Caret(), form.Text1.Text().size());
    EXPECT_LT(form.Text1.LineBreaks(), 2100U);
    EXPECT_LT(game.windows.Form2.Text1.LineBreaks(), 2100U);
    const bool building = game.state.GameStage == GameStage::Running && game.state.CommandVerb != NotChosen;
    EXPECT_EQ(form.Text2.Text().empty(), !building);
    EXPECT_EQ(form.Text2.Caret(), form.Text2.Text().size());
}
