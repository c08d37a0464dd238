#include "saves/system_panel.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/verbs.h"
#include "saves/save_files.h"
#include "text/characters.h"
#include "ui/errors.h"
#include "ui/input.h"

namespace {

struct ForbiddenCharacter {
    char Sign;
    std::string_view Name;  // because a screen reader passes over the sign
};

constexpr auto ForbiddenCharacters = std::to_array<ForbiddenCharacter>({
    {'.', "tečka"},
    {',', "čárka"},
    {':', "dvojtečka"},
    {';', "středník"},
    {'"', "uvozovka"},
    {'\'', "apostrof"},
    {'&', "ampersand"},
    {'#', "křížek"},
    {'$', "dolar"},
    {'?', "otazník"},
    {'*', "hvězdička"},
});

// The first one in the name; nullptr: none.
const ForbiddenCharacter* FindForbidden(std::string_view name) {
    for (const char sign : name) {
        const auto* const found = std::ranges::find(ForbiddenCharacters, sign, &ForbiddenCharacter::Sign);
        if (found != ForbiddenCharacters.end()) return found;
    }
    return nullptr;
}

bool IsExit(std::string_view name) {
    return text::LowerAscii(name) == "exit";
}

std::string Called(const std::string& name) {
    return name.empty() ? "Pozice bez názvu" : "Pozice „" + name + "“";
}

// Saves or loads under the typed name, or leaves the panel when that is "exit". The panel itself tells neither that it refuses a name nor
// that a save or load succeeded; only desktops with a place for notices do. A save or load that fails throws, and so the panel stays open.
void ReadCom(Game& game) {
    ui::SystemWindow& panel = game.windows.Form4;
    const std::string name = panel.Text1.Text();
    if (const ForbiddenCharacter* const found = FindForbidden(name)) {
        return game.desktop.ShowNotice("Název „" + name + "“ hra nepřijme: je v něm " + std::string(found->Name) + " (" + found->Sign +
                                       ").");
    }
    if (IsExit(name)) return ui::Hide(panel.Window);

    if (game.state.CommandVerb == verb::Load) {
        const auto& saves = panel.List1.Entries();
        if (std::ranges::find(saves, name) == saves.end()) return game.desktop.ShowNotice(Called(name) + " tu není.");
        LoadGame(game, name);
        game.desktop.ShowNotice(Called(name) + " je načtená.");
    } else {
        SaveGame(game, name);
        game.desktop.ShowNotice(Called(name) + " je uložená.");
    }
    panel.Text1.SetText("");
    panel.Label1.SetTextColour(ui::Teal);
    ui::Hide(panel.Window);
}

bool Text1_KeyPress(Game& game, char32_t key) {
    if (key != ui::key::Enter) return false;
    ReadCom(game);
    return true;
}

void List1_Click(Game& game) {
    ui::SystemWindow& panel = game.windows.Form4;
    panel.Text1.SetText(panel.List1.SelectedEntry());
    panel.Text1.MoveCaretToEnd();
}

// The list has the focus when the panel opens, so the keys of a player who types at once are passed on to the box.
bool List1_KeyPress(Game& game, char32_t key) {
    ui::PressKey(game.windows, game.windows.Form4.Text1, key);
    return true;
}

// Empties the panel and fills its list.
void ListSaves(Game& game) {
    std::vector<std::string> names;
    try {
        names = SaveNames(game);
    } catch (const ui::GameError& error) {
        // The panel opens all the same with an empty list, because the player may put right what is wrong while it is open.
        game.desktop.ShowMessageBox(error.what(), ui::ErrorTitle);
    }
    ui::SystemWindow& panel = game.windows.Form4;
    panel.List1.Clear();
    panel.Text1.SetText("");
    for (const std::string& name : names) panel.List1.Append(name);
}

}  // namespace

void OpenSystemPanel(Game& game) {
    ListSaves(game);
    game.desktop.ShowModal(game.windows.Form4.Window);
}

bool CanNameSave(std::string_view name) {
    using namespace std::string_view_literals;
    const bool isPathOrLines = name.find_first_of("/\\\0\r\n"sv) != std::string_view::npos;
    return !isPathOrLines && FindForbidden(name) == nullptr && !IsExit(name);
}

void RenewSystemPanel(Game& game) {
    ui::SystemWindow& panel = game.windows.Form4;
    if (!panel.Window.Visible) return;
    const std::string typed = panel.Text1.Text();
    const std::size_t caret = panel.Text1.Caret();
    ListSaves(game);
    panel.Text1.EditText(typed, caret);
}

void ConnectForm4(Game& game) {
    ui::SystemWindow& panel = game.windows.Form4;
    panel.List1.Click = [&game] { List1_Click(game); };
    panel.List1.KeyPress = [&game](char32_t key) { return List1_KeyPress(game, key); };
    panel.Text1.GotFocus = [&panel] { panel.Text1.SetCaretShape(ui::InputCaret); };
    panel.Text1.Change = [&panel] { panel.Label1.SetTextColour(ui::PaleCyan); };
    panel.Text1.KeyPress = [&game](char32_t key) { return Text1_KeyPress(game, key); };
    panel.Label2.Click = [&game] { ReadCom(game); };
}
