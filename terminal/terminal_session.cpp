#include "terminal/terminal_session.h"

#include "core/output.h"
#include "core/stages.h"
#include "terminal/terminal_commands.h"
#include "terminal/terminal_directory.h"
#include "terminal/terminal_output.h"
#include "terminal/terminal_texts.h"
#include "text/characters.h"
#include "ui/input.h"

namespace {

constexpr std::string_view LoginName = "mj-perolax";

void LogIn(Game& game, std::size_t terminal) {
    GameState& state = game.state;
    GetText(game, "Dobrý den, pane Selagu Hemafo!");
    state.TerminalLoggedIn = True;
    if (state.LabMessageState == MessageState::Waiting || state.StoreMessageState == MessageState::Waiting) {
        GetText(game, "Máte zde zprávu! Prosím zadejte příkaz pro čtení [READ MESSAGE].");
    } else if (state.TerminalMailbox[terminal] > 0) {
        GetText(game, "Máte zde anonymní zprávu! Prosím zadejte příkaz pro čtení [READ MESSAGE].");
    }
}

void AnswerLine(Game& game, std::string_view line) {
    GameState& state = game.state;
    const std::size_t terminal = TerminalIndexOf(Item{state.CommandObject});
    const std::string command = text::LowerAscii(line);
    if (command == "exit") {
        state.TerminalLoggedIn = False;
        ui::Hide(game.windows.Form2.Window);
    } else if (command == LoginName && state.TerminalLoggedIn == False) {
        LogIn(game, terminal);
    } else if (state.TerminalLoggedIn != True) {
        GetText(game, "Pro práci s terminálem se musíte nejprve přilogovat! Prosím, zadejte své logovací jméno:");
    } else {
        RunTerminalCommand(game, terminal, line);
    }
}

void ReadLine(Game& game) {
    ui::TerminalWindow& form = game.windows.Form2;
    LimitOutput(game, form.Text1);
    AnswerLine(game, form.Text2.Text());
    form.Text2.SetText("");
    form.Text1.MoveCaretToEnd();
    form.Label1.SetTextColour(ui::Teal);
}

bool Text2_KeyPress(Game& game, char32_t key) {
    game.windows.Form2.Label1.SetTextColour(ui::PaleCyan);
    if (key != ui::key::Enter) return false;
    ReadLine(game);
    return true;
}

}  // namespace

void OpenTerminal(Game& game, Item terminal) {
    ui::TerminalWindow& form = game.windows.Form2;
    WriteOutput(game, "Spustil jsi terminál...");
    game.state.TerminalLoggedIn = False;
    form.Text1.SetText(Banner(TerminalAt(TerminalIndexOf(terminal)).SerialNumber));
    GetText(game, "Zadejte prosím vaše logovací jméno:");
    game.desktop.ShowModal(form.Window);
}

void ConnectForm2(Game& game) {
    ui::TerminalWindow& form = game.windows.Form2;
    form.Text1.GotFocus = [&game] { ui::GiveFocus(game.windows, &game.windows.Form2.Text2); };
    form.Text2.GotFocus = [&form] { form.Text2.SetCaretShape(ui::InputCaret); };
    form.Text2.KeyPress = [&game](char32_t key) { return Text2_KeyPress(game, key); };
    form.Label2.Click = [&game] { ReadLine(game); };
}
