#include "saves/snapshot.h"

#include <algorithm>
#include <cassert>
#include <string>
#include <string_view>
#include <utility>

#include "core/stages.h"
#include "core/verbs.h"
#include "saves/save_format.h"

namespace {

// Part of the sum. Raise it when the bytes, or what a number in them means, change in a way that the sum does not notice: the layout of a
// saved game, say, or a stage of the story.
constexpr std::uint64_t Version = 1;

constexpr std::size_t SumBytes = 8;

// FNV-1a of 64 bits.
class Sum {
public:
    void Add(std::string_view bytes) {
        for (const char byte : bytes) AddByte(static_cast<std::uint8_t>(byte));
        AddByte(0);
    }

    void Add(std::span<const std::uint8_t> bytes) {
        for (const std::uint8_t byte : bytes) AddByte(byte);
    }

    void AddByte(std::uint8_t byte) { sum = (sum ^ byte) * 0x100000001B3; }

    std::array<std::uint8_t, SumBytes> Total() const {
        std::array<std::uint8_t, SumBytes> total{};
        for (std::size_t i = 0; i < SumBytes; ++i) total[i] = static_cast<std::uint8_t>(sum >> 8 * i);
        return total;
    }

private:
    std::uint64_t sum = 0xCBF29CE484222325;
};

// The sum is over the content and over the names that its numbers stand for: flags, things, verbs, windows and controls in their order, the
// sizes of the tables, and the texts. So a program in which one of these has changed refuses the snapshots of the program before it.
std::array<std::uint8_t, SumBytes> SumOf(const Game& game, std::span<const std::uint8_t> content) {
    Sum sum;
    sum.AddByte(Version);
    for (const std::size_t size : {MostCarried, TerminalCount, std::size_t{LastSector}}) sum.AddByte(static_cast<std::uint8_t>(size));
    for (const std::string_view word : verb::Names) sum.Add(word);
    for (const StoryFlag& flag : StoryFlags) sum.Add(flag.Name);
    for (std::int16_t item = 1; item <= NumberOf(LastItem); ++item) sum.Add(ItemName(Item{item}));
    for (const ui::Form* form : game.windows.All) {
        sum.Add(form->Layout.Name);
        for (const ui::Control& control : form->Controls) sum.Add(ui::LayoutOf(control).Name);
    }
    for (TextNumber number = 1; const auto text = game.texts.Text(number); ++number) sum.Add(*text);
    sum.Add(content);
    return sum.Total();
}

class Writer {
public:
    void Put(int number) {
        for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }

    void Put(std::string_view text) {
        Put(static_cast<int>(text.size()));
        bytes.insert(bytes.end(), text.begin(), text.end());
    }

    void Put(const Bytes& save) {
        Put(static_cast<int>(save.size()));
        bytes.insert(bytes.end(), save.begin(), save.end());
    }

    Bytes bytes;
};

// Checks nothing, because it reads only bytes that a program of the same version wrote: their sum has been compared.
class Reader {
public:
    explicit Reader(std::span<const std::uint8_t> content) : rest(content) {}

    int Number() {
        std::uint32_t number = 0;
        for (int shift = 0; const std::uint8_t byte : Take(4)) {
            number |= std::uint32_t{byte} << shift;
            shift += 8;
        }
        return static_cast<int>(number);
    }

    std::int16_t Word() { return static_cast<std::int16_t>(Number()); }
    std::span<const std::uint8_t> Part() { return Take(static_cast<std::size_t>(Number())); }

    std::string Text() {
        const auto part = Part();
        return {part.begin(), part.end()};
    }

private:
    std::span<const std::uint8_t> Take(std::size_t size) {
        assert(size <= rest.size());
        return std::exchange(rest, rest.subspan(size)).first(size);
    }

    std::span<const std::uint8_t> rest;
};

// What saved games leave out of the state.
constexpr auto UnsavedWords = std::to_array<std::int16_t GameState::*>(
    {&GameState::TerminalLoggedIn, &GameState::CommandVerb, &GameState::CommandObject, &GameState::CommandTarget, &GameState::GameStage});
constexpr auto UnsavedOfSector =
    std::to_array<std::int16_t SectorRecord::*>({&SectorRecord::X, &SectorRecord::Y, &SectorRecord::TextNo, &SectorRecord::North,
                                                 &SectorRecord::South, &SectorRecord::West, &SectorRecord::East});

void PutState(Writer& writer, const GameState& state) {
    writer.Put(EncodeSave(state, "", {.Name = 0, .DoorCode = 0}));
    for (const auto word : UnsavedWords) writer.Put(state.*word);
    for (const SectorRecord& sector : state.Sectors.All()) {
        for (const auto word : UnsavedOfSector) writer.Put(sector.*word);
    }
}

GameState TakeState(Reader& reader, const GameState& current) {
    GameState state = DecodeSave(reader.Part(), "", current).value();
    for (const auto word : UnsavedWords) state.*word = reader.Word();
    for (std::int16_t sector = 0; sector <= LastSector; ++sector) {
        for (const auto word : UnsavedOfSector) state.Sectors[sector].*word = reader.Word();
    }
    return state;
}

void Put(Writer& writer, const ui::TextBox& box) {
    writer.Put(box.Text());
    writer.Put(static_cast<int>(box.Caret()));
    writer.Put(box.Visible() ? 1 : 0);
}

void Take(Reader& reader, ui::TextBox& box) {
    const std::string text = reader.Text();
    const auto caret = static_cast<std::size_t>(reader.Number());
    if (box.Layout.MultiLine) {
        box.SetText(text);
        if (caret == text.size()) box.MoveCaretToEnd();
    } else {
        box.EditText(text, caret);
    }
    box.SetVisible(reader.Number() != 0);
}

void Put(Writer& writer, const ui::ListBox& list) {
    writer.Put(static_cast<int>(list.Entries().size()));
    for (const std::string& entry : list.Entries()) writer.Put(entry);
    writer.Put(list.Selected());
}

void Take(Reader& reader, ui::ListBox& list) {
    list.Clear();
    for (int count = reader.Number(); count > 0; --count) list.Append(reader.Text());
    list.Select(reader.Number());
}

void Put(Writer& writer, const ui::Label& label) {
    const auto [red, green, blue] = label.TextColour();
    writer.Put(label.Caption());
    for (const int part : {red, green, blue}) writer.Put(part);
}

void Take(Reader& reader, ui::Label& label) {
    label.SetCaption(reader.Text());
    const int red = reader.Number();
    const int green = reader.Number();
    const int blue = reader.Number();
    label.SetTextColour({static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(blue)});
}

// Labels come last, because restoring a box raises its change event, and that lights the lamp of its window.
void ForEachControl(const ui::Windows& windows, const std::function<void(const ui::Control&)>& act) {
    for (const bool labels : {false, true}) {
        for (const ui::Form* form : windows.All) {
            for (const ui::Control& control : form->Controls) {
                if (std::holds_alternative<ui::Label*>(control) == labels) act(control);
            }
        }
    }
}

bool IsPanelOpen(const ui::Windows& windows) {
    return std::ranges::any_of(windows.All, [](const ui::Form* form) { return form->Layout.IsPanel() && form->Visible; });
}

}  // namespace

std::optional<Bytes> TakeSnapshot(const Game& game) {
    if (game.state.GameStage != GameStage::Running || game.state.GameOver == True) return std::nullopt;
    Writer writer;
    PutState(writer, game.state);
    ForEachControl(game.windows,
                   [&writer](const ui::Control& control) { std::visit([&writer](const auto* each) { Put(writer, *each); }, control); });
    writer.Put(IsPanelOpen(game.windows) ? 1 : 0);
    const auto sum = SumOf(game, writer.bytes);
    writer.bytes.insert(writer.bytes.end(), sum.begin(), sum.end());
    return std::move(writer.bytes);
}

bool IsSnapshot(const Game& game, std::span<const std::uint8_t> bytes) {
    if (bytes.size() <= SumBytes) return false;
    const auto sum = SumOf(game, bytes.first(bytes.size() - SumBytes));
    return std::equal(sum.begin(), sum.end(), bytes.last(SumBytes).begin());
}

bool RestoreSnapshot(Game& game, std::span<const std::uint8_t> bytes) {
    assert(IsSnapshot(game, bytes));
    Reader reader(bytes);
    game.state = TakeState(reader, game.state);
    ForEachControl(game.windows,
                   [&reader](const ui::Control& control) { std::visit([&reader](auto* each) { Take(reader, *each); }, control); });
    return reader.Number() != 0;
}
