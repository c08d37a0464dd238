#include "tests/random/random_player.h"

#include <array>

#include "core/stages.h"
#include "core/verbs.h"
#include "terminal/terminal_directory.h"
#include "text/characters.h"

namespace {

using namespace std::string_view_literals;

// How often each verb is chosen, in the order of the verb list.
constexpr std::array VerbWeights{220, 140, 260, 110, 40, 110, 20, 110, 5, 6, 6, 2, 1};
constexpr int AllVerbWeights = 1030;
static_assert(VerbWeights.size() == verb::Names.size());

constexpr std::array Phrases{"mj-perolax"sv,
                             "read message"sv,
                             "send alert "sv,
                             "send captain importance "sv,
                             "ping "sv,
                             "send starport importance "sv,
                             "archive #"sv,
                             "send store importance "sv,
                             "length of program"sv,
                             "test dna processing"sv,
                             "secret in the cave"sv,
                             "EXIT"sv};
constexpr std::array SaveNames{"a"sv, "Hra 1"sv, "žluť"sv, "x.y"sv, "b/c"sv, " "sv, "exit"sv, "Exit"sv};
constexpr std::array OddKeys{"Enter"sv, "Backspace"sv, "Backspace"sv, "ž"sv, "☃"sv, "a"sv, "7"sv, "-"sv, "Š"sv};
constexpr std::array OddLetters{"ž"sv, "č"sv, "#"sv, "A"sv, "9"sv, "„"sv};

std::string Key(std::string_view box, std::string_view key) {
    return std::string("key ").append(box).append(" ").append(key);
}

std::string Type(std::string_view box, std::string_view text) {
    return std::string("type ").append(box).append(" ").append(text);
}

std::string Click(std::string_view list, int index) {
    return std::string("click ").append(list).append(" ").append(std::to_string(index));
}

std::string NameOf(const ui::ListBox& list) {
    return std::string("Form1.").append(list.Layout.Name);
}

int Size(const ui::ListBox& list) {
    return static_cast<int>(list.Entries().size());
}

bool HasSomething(const ui::ListBox& list) {
    return !list.Entries().empty() && list.Entry(0) != ui::NothingThere;
}

}  // namespace

std::string RandomPlayer::NextMove(const Game& game, const ui::MemoryDesktop& desktop) {
    if (Chance(4)) return SenselessMove(game);
    const ui::Windows& windows = game.windows;
    if (desktop.Modal() == &windows.Form2.Window) return TerminalMove(game);
    if (desktop.Modal() == &windows.Form3.Window) return KeypadMove(game);
    if (desktop.Modal() == &windows.Form4.Window) return SystemMove(game);
    return Command(game);
}

std::string RandomPlayer::Command(const Game& game) {
    const GameState& state = game.state;
    if (state.GameStage != GameStage::Running || state.CommandVerb >= verb::Clear) return RunCommand();
    if (state.CommandVerb == NotChosen) return ChooseVerb();
    if (state.CommandVerb == verb::Go) {
        const ui::ListBox& directions = game.windows.Form1.List2[1];
        return directions.Selected() < 0 && HasSomething(directions) ? ClickCurious(game, directions) : RunCommand();
    }
    if (state.CommandObject == NotChosen) return ChooseObject(game);
    if (state.CommandVerb == verb::Use && state.CommandTarget == NotChosen) return ChooseTarget(game);
    return RunCommand();
}

std::string RandomPlayer::ChooseVerb() {
    int left = Below(AllVerbWeights);
    int chosen = 0;
    while (left >= VerbWeights[static_cast<std::size_t>(chosen)]) left -= VerbWeights[static_cast<std::size_t>(chosen++)];
    return Click("Form1.List2(0)", chosen);
}

std::string RandomPlayer::ChooseObject(const Game& game) {
    const ui::MainWindow& form = game.windows.Form1;
    const bool carried = game.state.CommandVerb == verb::Put || (game.state.CommandVerb == verb::Use && Chance(60)) || Chance(10);
    const ui::ListBox& list = carried && HasSomething(form.List1) ? form.List1 : form.List2[1];
    if (!HasSomething(list) || Chance(1)) return RunCommand();
    return ClickCurious(game, list);
}

std::string RandomPlayer::ChooseTarget(const Game& game) {
    const ui::MainWindow& form = game.windows.Form1;
    if (Chance(2)) return RunCommand();
    if (Chance(25)) return Click("Form1.List2(2)", Size(form.List2[2]) - 1);
    return ClickCurious(game, Chance(25) && HasSomething(form.List1) ? form.List1 : form.List2[2]);
}

std::string RandomPlayer::ClickCurious(const Game& game, const ui::ListBox& list) {
    const std::string soFar = std::to_string(game.state.CurrentSector) + game.windows.Form1.Text2.Text();
    int chosen = Below(Size(list));
    const auto timesTried = [&](int index) -> int& { return tried[std::string(soFar).append(list.Entry(index))]; };
    for (int another = 0; another < 2; ++another) {
        const int index = Below(Size(list));
        if (timesTried(index) < timesTried(chosen)) chosen = index;
    }
    ++timesTried(chosen);
    return Click(NameOf(list), chosen);
}

std::string RandomPlayer::RunCommand() {
    return Chance(90) ? Key("Form1.Text2", "Enter") : "click Form1.Label1";
}

std::string RandomPlayer::TerminalMove(const Game& game) {
    if (game.windows.Form2.Text2.Text().empty()) return Type("Form2.Text2", TerminalLine(game));
    return Chance(90) ? Key("Form2.Text2", "Enter") : "click Form2.Label2";
}

std::string RandomPlayer::TerminalLine(const Game& game) {
    if (Chance(20)) return "exit";
    if (game.state.TerminalLoggedIn == False && Chance(85)) return "mj-perolax";
    std::string line(AnyOf(std::span<const std::string_view>(Phrases)));
    if (line.ends_with('#')) line += std::to_string(Below(7));
    if (line.ends_with(' ')) {
        const std::string_view serialNumber = TerminalAt(static_cast<std::size_t>(Below(5))).SerialNumber;
        line += Chance(50) ? std::string(serialNumber) : text::LowerAscii(serialNumber);
    }
    return Chance(15) ? Garble(line) : line;
}

std::string RandomPlayer::Garble(std::string_view line) {
    std::string garbled(line);
    for (int change = Below(3); change >= 0 && !garbled.empty(); --change) {
        const auto at = static_cast<std::size_t>(Below(static_cast<int>(garbled.size())));
        // Only ASCII is taken away, because of any other character this would take but one byte.
        const bool letter = static_cast<unsigned char>(garbled[at]) < 0x80 && Chance(60);
        if (letter)
            garbled.erase(at, 1);
        else
            garbled += AnyOf(std::span<const std::string_view>(OddLetters));
    }
    return garbled.empty() ? " " : garbled;
}

std::string RandomPlayer::KeypadMove(const Game& game) {
    if (Chance(15)) return "click Form3.Label3";
    if (!game.windows.Form3.Text1.Text().empty()) return Key("Form3.Text1", "Enter");
    if (!game.state.DoorCode.empty() && Chance(70)) return Type("Form3.Text1", game.state.DoorCode);
    return Type("Form3.Text1", std::to_string(Below(10000000)));
}

std::string RandomPlayer::SystemMove(const Game& game) {
    const ui::SystemWindow& form = game.windows.Form4;
    if (!form.Text1.Text().empty()) return Chance(60) ? Key("Form4.Text1", "Enter") : Key("Form4.Text1", "Backspace");
    if (!form.List1.Entries().empty() && Chance(50)) return Click("Form4.List1", Below(Size(form.List1)));
    return Type("Form4.Text1", AnyOf(std::span<const std::string_view>(SaveNames)));
}

// Anything at all on any window, whether it can be reached or not.
std::string RandomPlayer::SenselessMove(const Game& game) {
    const ui::Form& form = *AnyOf(std::span<ui::Form* const>(game.windows.All));
    const std::string formName(form.Layout.Name);
    if (form.Controls.empty() || Chance(15)) return "focus " + formName;
    if (Chance(1)) return "close " + formName;
    if (Chance(1)) return Key("Form1.Text2", "Escape");
    if (Chance(10)) return "random 0.999999999 0 0.5";

    const ui::Control& control = AnyOf(std::span<const ui::Control>(form.Controls));
    const std::string name = formName + "." + std::string(ui::LayoutOf(control).Name);
    if (Chance(20)) return "focus " + name;
    if (auto* const* list = std::get_if<ui::ListBox*>(&control)) return Click(name, Below(Size(**list) + 2) - 1);
    if (std::holds_alternative<ui::TextBox*>(control)) return Key(name, AnyOf(std::span<const std::string_view>(OddKeys)));
    return "click " + name;
}
