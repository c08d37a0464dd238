#include "terminal/keypad.h"

#include "core/output.h"
#include "ui/input.h"

namespace {

constexpr std::string_view Accepted = "--- OK ---";
constexpr std::string_view Refused = "--- ERROR ---";

void EnterCode(Game& game) {
    enum : TextNumber { DoorUnlocks = 182 };
    GameState& state = game.state;
    ui::KeypadWindow& form = game.windows.Form3;
    if (state.DoorCode.empty() || form.Text1.Text() != state.DoorCode) {
        form.Label1.SetCaption(Refused);
    } else if (state.KeypadDoorOpen == True) {
        form.Label1.SetCaption(Refused);
        // This answer alone leaves the code in the box.
        return WriteOutput(game, "Dveře jsou otevřené, proto nemohou být zamčeny!");
    } else if (state.KeypadDoorUnlocked == False) {
        form.Label1.SetCaption(Accepted);
        ShowStoryText(game, DoorUnlocks);
        state.KeypadDoorUnlocked = True;
    } else {
        WriteOutput(game, "Číselník pípnul, ve dveřích cvaklo a dveře se zamkly.");
        form.Label1.SetCaption(Accepted);
        state.KeypadDoorUnlocked = False;
    }
    form.Text1.SetText("");
}

bool Text1_KeyPress(Game& game, char32_t key) {
    if (key != ui::key::Enter) return false;
    EnterCode(game);
    return true;
}

void Cancel(Game& game) {
    ui::KeypadWindow& form = game.windows.Form3;
    form.Label1.SetCaption(form.Label1.Layout.Caption);
    form.Text1.SetText("");
    ui::Hide(form.Window);
}

}  // namespace

void OpenKeypad(Game& game) {
    WriteOutput(game, "Aktivoval jsi číselník...");
    game.desktop.ShowModal(game.windows.Form3.Window);
}

void ConnectForm3(Game& game) {
    ui::KeypadWindow& form = game.windows.Form3;
    form.Text1.GotFocus = [&form] { form.Text1.SetCaretShape(ui::InputCaret); };
    form.Text1.KeyPress = [&game](char32_t key) { return Text1_KeyPress(game, key); };
    form.Label3.Click = [&game] { Cancel(game); };
}
