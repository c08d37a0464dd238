#include "saves/save_format.h"

#include <cassert>
#include <string>
#include <vector>

#include "text/characters.h"
#include "text/windows1250.h"

namespace {

class WordWriter {
public:
    void Put(std::int16_t word) {
        file.push_back(static_cast<std::uint8_t>(word & 0xFF));
        file.push_back(static_cast<std::uint8_t>(word >> 8 & 0xFF));
    }

    void PutAll(std::span<const std::int16_t> words) {
        for (const std::int16_t word : words) Put(word);
    }

    void PutLength(std::size_t length) {
        assert(length <= INT16_MAX);
        Put(static_cast<std::int16_t>(length));
    }

    void PutText(std::string_view utf8, std::int16_t key) {
        PutLength(text::CharCount(utf8));
        Put(key);
        while (!utf8.empty()) {
            const auto code = text::ToWindows1250(text::TakeCharacter(utf8));
            assert(code);
            Put(static_cast<std::int16_t>(*code + key));
        }
    }

    Bytes Written() && { return std::move(file); }

private:
    Bytes file;
};

std::string TakeKeyedText(WordReader& reader) {
    const std::size_t length = reader.TakeLength();
    const std::int16_t key = reader.Take();
    return reader.TakeText(length, key);
}

void TakeAll(WordReader& reader, std::span<std::int16_t> words) {
    for (std::int16_t& word : words) word = reader.Take();
}

// A count below 0 stands for an empty list.
std::vector<std::int16_t> TakeItems(WordReader& reader) {
    std::vector<std::int16_t> items;
    const std::int16_t count = reader.Take();
    for (std::int16_t i = 0; i < count; ++i) items.push_back(reader.Take());
    return items;
}

bool StandsInCurrentSector(const GameState& state) {
    if (state.CurrentSector < 1 || state.CurrentSector > LastSector) return false;
    const SectorRecord& sector = state.Sectors[state.CurrentSector];
    return state.PlayerX == sector.X && state.PlayerY == sector.Y;
}

}  // namespace

Bytes EncodeSave(const GameState& state, std::string_view name, SaveKeys keys) {
    WordWriter writer;
    writer.PutText(name, keys.Name);
    writer.Put(state.PlayerX);
    writer.Put(state.PlayerY);
    writer.PutAll(state.Inventory);
    writer.Put(state.CurrentSector);
    for (std::int16_t sector = 1; sector <= LastSector; ++sector) {
        writer.PutLength(state.Sectors[sector].Items.size());
        writer.PutAll(state.Sectors[sector].Items);
    }
    for (const StoryFlag& flag : StoryFlags) writer.Put(state.*flag.Value);
    writer.PutText(state.DoorCode, keys.DoorCode);
    writer.PutAll(state.TerminalMailbox);
    return std::move(writer).Written();
}

std::string NameInSave(std::span<const std::uint8_t> file) {
    WordReader reader(file, std::string(LoadError));
    return TakeKeyedText(reader);
}

std::optional<GameState> DecodeSave(std::span<const std::uint8_t> file, std::string_view name, const GameState& current) {
    WordReader reader(file, std::string(LoadError));
    if (TakeKeyedText(reader) != name) return std::nullopt;

    GameState loaded = current;
    loaded.PlayerX = reader.Take();
    loaded.PlayerY = reader.Take();
    TakeAll(reader, loaded.Inventory);
    loaded.CurrentSector = reader.Take();
    if (!StandsInCurrentSector(loaded)) reader.Refuse();
    for (std::int16_t sector = 1; sector <= LastSector; ++sector) loaded.Sectors[sector].Items = TakeItems(reader);
    for (const StoryFlag& flag : StoryFlags) loaded.*flag.Value = reader.Take();
    loaded.DoorCode = TakeKeyedText(reader);
    TakeAll(reader, loaded.TerminalMailbox);
    return loaded;
}
