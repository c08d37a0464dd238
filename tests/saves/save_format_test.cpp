#include "saves/save_format.h"

#include <gmock/gmock.h>

#include "tests/saves/saved_games.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

void SetWord(Bytes& file, std::size_t index, int word) {
    file[2 * index] = static_cast<std::uint8_t>(word & 0xFF);
    file[2 * index + 1] = static_cast<std::uint8_t>(word >> 8 & 0xFF);
}

// The places of fields, counted in words, in a game called "a" that was saved at the start:
constexpr std::size_t NameLength = 0, NameCharacter = 2, Column = 3, FirstSlot = 5, Sector = 10, ItemCount = 11, FirstItem = 12;

Bytes StartSave() {
    return EncodeSave(StartState(), "a", SomeKeys);
}

std::size_t DoorCodeLength(const Bytes& save) {
    return save.size() / 2 - 7;
}

enum class Outcome { Loaded, OtherName, Damaged };

Outcome TryLoading(std::span<const std::uint8_t> file, std::string_view name) {
    const GameState current = StartState();
    try {
        const auto loaded = DecodeSave(file, name, current);
        if (!loaded) return Outcome::OtherName;
        EXPECT_EQ(FindSector(current.Sectors, loaded->PlayerX, loaded->PlayerY), loaded->CurrentSector);
        EXPECT_NE(loaded->CurrentSector, 0);
        return Outcome::Loaded;
    } catch (const ui::GameError& error) {
        EXPECT_EQ(error.what(), LoadError);
        return Outcome::Damaged;
    }
}

Outcome TryLoading(std::size_t word, int value) {
    Bytes file = StartSave();
    SetWord(file, word, value);
    return TryLoading(file, "a");
}

// Written by another program from the description of the format: called "Čtvrtá paluba ž", keys 42 and 77.
TEST(SaveFormat, ReadsAndWritesTheGoldenSaveByteForByte) {
    constexpr std::string_view name = "Čtvrtá paluba ž";
    const Bytes golden = ReadFile(ORVEL_SOURCE_FOLDER "/tests/saves/golden.TVX", "no golden save");
    const auto state = DecodeSave(golden, name, StartState());
    ASSERT_TRUE(state);
    EXPECT_EQ(state->CurrentSector, sector::Hangar);
    EXPECT_EQ(state->DoorCode, "4711305");
    EXPECT_THAT(state->Inventory, ElementsAre(9, 8, 73, 74, 0));
    EXPECT_THAT(state->TerminalMailbox, ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(state->Sectors[4].Items, ElementsAre(15, 6));
    EXPECT_THAT(state->Sectors[8].Items, IsEmpty());
    EXPECT_EQ(state->ReplicatorState, 4);
    EXPECT_EQ(state->CalledAwayDestination, 2);
    EXPECT_EQ(state->UniformPlaced, True);
    EXPECT_EQ(EncodeSave(*state, name, SomeKeys), golden);
    EXPECT_EQ(EncodeSave(GameState{}, "", SomeKeys).size(), 2 * FixedSaveWords);
}

TEST(SaveFormat, BringsEveryStateBackWhateverTheKeys) {
    std::mt19937 random(1);
    GameState current = StartState();
    current.GameStage = 2;
    current.Sectors[1].North = True;
    for (int i = 0; i < 10000; ++i) {
        const GameState state = RandomState(random);
        const SaveKeys keys{.Name = static_cast<std::int16_t>(random() % 100), .DoorCode = static_cast<std::int16_t>(random() % 100)};
        const auto loaded = DecodeSave(EncodeSave(state, "hra", keys), "hra", current);
        ASSERT_TRUE(loaded);
        ASSERT_EQ(EncodeSave(*loaded, "hra", SomeKeys), EncodeSave(state, "hra", SomeKeys));
        ASSERT_EQ(loaded->GameStage, 2);
        ASSERT_EQ(loaded->Sectors[1].North, True);
    }
}

TEST(SaveFormat, RefusesEveryFileThatIsCutShort) {
    std::mt19937 random(2);
    for (int i = 0; i < 20; ++i) {
        const Bytes whole = EncodeSave(RandomState(random), "hra", SomeKeys);
        for (std::size_t length = 0; length < whole.size(); ++length) {
            ASSERT_EQ(TryLoading(std::span(whole).first(length), "hra"), Outcome::Damaged) << length;
        }
    }
}

TEST(SaveFormat, RefusesWhatNoGameCanHaveSaved) {
    for (const int length : {-1, -32768, 32767}) EXPECT_EQ(TryLoading(NameLength, length), Outcome::Damaged) << length;
    for (const int sector : {0, -1, LastSector + 1, 32767}) EXPECT_EQ(TryLoading(Sector, sector), Outcome::Damaged) << sector;
    EXPECT_EQ(TryLoading(Sector, sector::Hangar), Outcome::Damaged);
    EXPECT_EQ(TryLoading(Column, 6), Outcome::Damaged);  // the store, not the cabin
    Bytes nowhere = StartSave();
    for (const std::size_t word : {Column, Column + 1, Sector}) SetWord(nowhere, word, 0);
    EXPECT_EQ(TryLoading(nowhere, "a"), Outcome::Damaged);
    EXPECT_EQ(TryLoading(ItemCount, 32767), Outcome::Damaged);
    EXPECT_EQ(TryLoading(NameCharacter, 42 + 256), Outcome::Damaged);
    EXPECT_EQ(TryLoading(NameCharacter, 42 - 1), Outcome::Damaged);
    EXPECT_EQ(TryLoading(NameCharacter, 42 + 'b'), Outcome::OtherName);
    for (const int length : {-1, 6, 32767}) EXPECT_EQ(TryLoading(DoorCodeLength(StartSave()), length), Outcome::Damaged) << length;
}

TEST(SaveFormat, TakesACountBelowZeroForAnEmptyList) {
    GameState state = StartState();
    state.Sectors[1].Items.clear();
    Bytes file = EncodeSave(state, "a", SomeKeys);
    SetWord(file, ItemCount, -3);
    const auto loaded = DecodeSave(file, "a", StartState());
    ASSERT_TRUE(loaded);
    EXPECT_THAT(loaded->Sectors[1].Items, IsEmpty());
    EXPECT_EQ(loaded->Sectors[2].Items, state.Sectors[2].Items);
}

}  // namespace
