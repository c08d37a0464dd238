#include <string>

#include "core/carrying.h"
#include "core/stages.h"
#include "interactions/use_cases.h"
#include "terminal/keypad.h"
#include "terminal/terminal_session.h"

namespace {

constexpr int DoorCodeLength = 7;
constexpr int DoorCodeDigits = 9;  // 0 to 8
constexpr int EmergencyDestinations = 3;

void EraseDoorCode(Game& game) {
    enum : TextNumber { CodeErased = 211 };
    Tell(game, CodeErased);
    game.state.DoorCode.clear();
    game.state.KeypadDisabled = True;
    game.state.KeypadDoorUnlocked = False;
}

}  // namespace

void StartTerminal(Game& game, Item terminal) {
    OpenTerminal(game, terminal);
}

void StartHangarTerminal(Game& game) {
    enum : TextNumber { ScreenStaysDark = 132 };
    if (game.state.HangarTerminalState != HangarTerminalStage::Repaired) return Tell(game, ScreenStaysDark);
    OpenTerminal(game, Item::HangarTerminal);
}

void TypeOnKeypad(Game& game) {
    OpenKeypad(game);
}

void ConnectCable(Game& game) {
    enum : TextNumber { CableClicksIn = 176 };
    Tell(game, CableClicksIn);
    game.state.CableConnected = True;
    RemoveFromInventory(game, Item::DataCable);
}

void ConnectTester(Game& game) {
    enum : TextNumber { TesterClicksIn = 177 };
    Tell(game, TesterClicksIn);
    game.state.TesterConnected = True;
    RemoveFromInventory(game, Item::Tester);
}

void ReprogramKeypad(Game& game) {
    enum : TextNumber { MemoryRead = 181 };
    GameState& state = game.state;
    if (state.CableConnected == False || state.TesterConnected == False) return Refuse(game);
    if (state.ContainerStoryState == ContainerStage::AgentTold && state.KeypadDisabled == False) return EraseDoorCode(game);
    if (state.KeypadDisabled == True) return WriteOutput(game, "Raději ne...");

    Tell(game, MemoryRead);
    if (state.CalledAwayState == CalledAwayStage::Inside) {
        WriteOutput(game,
                    "Potom se objevilo, že starý kód byl naposledy použit na druhé straně dveří, znamená to tedy, že je někdo uvnitř.");
    }
    if (state.CalledAwayDestination == 0) state.CalledAwayDestination = static_cast<std::int16_t>(Draw(game, EmergencyDestinations) + 1);
    state.DoorCode.clear();
    for (int i = 0; i < DoorCodeLength; ++i) state.DoorCode += std::to_string(Draw(game, DoorCodeDigits));
    WriteOutput(game, "Nový kód je " + state.DoorCode);
}
