#include "terminal/terminal_commands.h"

#include <algorithm>
#include <array>
#include <string>

#include "core/sector_items.h"
#include "core/stages.h"
#include "terminal/terminal_directory.h"
#include "terminal/terminal_output.h"
#include "terminal/terminal_texts.h"
#include "text/characters.h"

namespace {

constexpr std::size_t SerialNumberLength = 12;

constexpr std::string_view MessageHeader = "Zahajuji výpis zprávy..............completed.";
constexpr std::string_view SecretHeader = "Vypisuji tajné informace................complete.";
constexpr std::string_view EndOfFile = "END OF FILE";

struct Call {
    Game& GameInPlay;
    std::size_t Terminal;   // in use
    std::string_view Line;  // as typed
};

// The emergency messages by kind, from 1.
struct EmergencyMessage {
    std::string_view Text, Confirmation;
};

constexpr auto EmergencyMessages = std::to_array<EmergencyMessage>({
    {"Vaše přítomnost je vážně nutná na můstku. Prosím dostavte se na určené místo co nejdříve.",
     "Zpráva pro nouzový příchod na můstek odeslána na terminál číslo "},
    {"Vaše přítomnost je vážně nutná v kajutě kapitána. Prosím dostavte se na určené místo co nejdříve.",
     "Zpráva pro nouzový příchod do kajuty kapitána odeslána na terminál číslo "},
    {"Vaše přítomnost je vážně nutná v hangáru. Prosím dostavte se na určené místo co nejdříve.",
     "Zpráva pro nouzový příchod do hangáru odeslána na terminál číslo "},
    {"Vaše přítomnost je vážně nutná ve skladě. Prosím dostavte se na určené místo co nejdříve.",
     "Zpráva pro nouzový příchod do skladu odeslána na terminál číslo "},
});

enum Kind : std::int16_t { Bridge = 1, CaptainsCabin, Hangar, Store };

void ReadMessage(const Call& call) {
    Game& game = call.GameInPlay;
    GameState& state = game.state;
    std::int16_t& mailbox = state.TerminalMailbox[call.Terminal];
    if (state.LabMessageState == MessageState::Waiting) {
        GetText(game, MessageHeader);
        GetText(game,
                "Pane Hemafo, mohl byste se prosím dostavit do laboratoře? Porouchal se nám zde replikátor. Nevím, jak se to stalo, "
                "najednou v něm prskla jiskra a přestal fungovat. Přijďte prosím co nejdříve. Děkuji.");
        state.LabMessageState = MessageState::Read;
    } else if (state.StoreMessageState == MessageState::Waiting) {
        state.StoreMessageState = MessageState::Read;
        GetText(game, MessageHeader);
        GetText(game,
                "Pane Hemafo, mohl byste nám pomoci ve skladě? Zjistili jsme, že jedny dlouho nepoužívané dveře nejdou otevřít. Bude to "
                "nejspíše závada v ovládání. Přijďte co nejdříve, děkuji.");
    } else if (mailbox > 0) {
        const auto kind = static_cast<std::size_t>(mailbox);
        mailbox = 0;
        if (kind > EmergencyMessages.size()) return;  // only a loaded game can hold such a message
        GetText(game, MessageHeader);
        GetText(game, EmergencyMessages[kind - 1].Text);
    } else {
        GetText(game, "V paměti se nenacházejí žádné zprávy.");
    }
}

void ReplyNotFound(Game& game, std::string_view serialNumber) {
    ReplyError(game,
               std::string("Sériové číslo ").append(serialNumber).append(" nemohu nalézt v databázi sériových čísel terminálů této lodi!"));
}

// Despite its name this does more than check: it puts the message into the mailbox of the terminal with that number. It returns true when
// the number is NOT found, which it also replies.
bool CheckSN(Game& game, std::string_view serialNumber, Kind kind) {
    const auto terminal = FindTerminal(serialNumber);
    if (!terminal) {
        ReplyNotFound(game, serialNumber);
        return true;
    }
    game.state.TerminalMailbox[*terminal] = kind;
    return false;
}

void Confirm(const Call& call, std::string_view serialNumber, Kind kind) {
    GetText(call.GameInPlay, std::string(EmergencyMessages[static_cast<std::size_t>(kind - 1)].Confirmation)
                                 .append(text::UpperAscii(serialNumber))
                                 .append("..."));
}

bool IsTerminal(std::string_view serialNumber, Item terminal) {
    return text::UpperAscii(serialNumber) == TerminalAt(TerminalIndexOf(terminal)).SerialNumber;
}

void SendAlert(const Call& call) {
    GameState& state = call.GameInPlay.state;
    const std::string_view serialNumber = text::LastChars(call.Line, SerialNumberLength);
    const bool captainLeaves = IsTerminal(serialNumber, Item::CaptainTerminal) && state.BridgeAlertReady == True &&
                               state.CaptainAlertState == CaptainAlertStage::Calm;
    if (captainLeaves) {
        // The captain reads the message at once, so none waits in his mailbox.
        state.CaptainAlertState = CaptainAlertStage::Alerted;
        RemoveItemFromSector(call.GameInPlay, sector::CaptainsCabin, Item::Captain, Redraw::No);
    } else if (CheckSN(call.GameInPlay, serialNumber, Bridge)) {
        return;
    }
    Confirm(call, serialNumber, Bridge);
}

// The occupant of the inner room obeys only one of the three messages: the one that was drawn when the door code was first changed.
void SendImportance(const Call& call, Kind kind) {
    GameState& state = call.GameInPlay.state;
    const std::string_view serialNumber = text::LastChars(call.Line, SerialNumberLength);
    if (CheckSN(call.GameInPlay, serialNumber, kind)) return;
    const std::int16_t destination = kind - Kind::Bridge;
    if (IsTerminal(serialNumber, Item::InnerRoomTerminal) && state.CalledAwayDestination == destination &&
        state.CalledAwayState == CalledAwayStage::Inside) {
        state.CalledAwayState = CalledAwayStage::Called;
    }
    Confirm(call, serialNumber, kind);
}

void EmptyVessel(GameState& state) {
    state.DnaSampleItem = 0;
    state.DnaSampleLoaded = False;
}

void TestDna(const Call& call) {
    enum : TextNumber { MatchFound = 244 };
    Game& game = call.GameInPlay;
    GameState& state = game.state;
    if (call.Terminal != LabTerminalIndex) {
        ReplyError(game, "Tento terminál neposkytuje potřebné vybavení pro testování DNA!");
    } else if (state.DnaReferenceLoaded != True || state.DnaSampleItem == 0) {
        ReplyError(game, "Vložte prosím do terminálových nádob dva vzorky k testování!");
    } else if (Item{state.DnaSampleItem} == Item::SampleVega) {
        GetText(game, "Test DNA pozitivní! DNA je stejné.");
        state.DnaMatchFound = True;
        AddItemToSector(game, sector::CaptainsCabin, Item::ManInDarkGlasses, Redraw::Yes);
        ShowStoryText(game, MatchFound);
        EmptyVessel(state);
    } else {
        EmptyVessel(state);
        GetText(game, "Test DNA negativí! DNA není stejné.");
    }
}

void ListArchive(const Call& call) {
    Game& game = call.GameInPlay;
    const std::string_view key = text::DropChars(call.Line, std::string_view("archive #").size());
    GetText(game, std::string("Zahajuji výpis archivu... SLOŽKA #").append(key).append("..."));
    const auto folders = ArchiveFolders();
    const bool known = key.size() == 1 && key[0] >= '1' && static_cast<std::size_t>(key[0] - '0') <= folders.size();
    if (!known) return ReplyError(game, "Složka nenalezena!");
    GetText(game, folders[static_cast<std::size_t>(key[0] - '1')]);
    GetText(game, EndOfFile);
    if (key == "5") game.state.ArchiveFolder5Read = True;
}

void Ping(const Call& call) {
    // One character behind the command is skipped, whatever it is; normally it is a blank.
    const std::string_view serialNumber = text::DropChars(call.Line, std::string_view("ping ").size());
    GetText(call.GameInPlay, "Hledám cestu...");
    const auto terminal = FindTerminal(serialNumber);
    if (!terminal) return ReplyNotFound(call.GameInPlay, serialNumber);
    GetText(call.GameInPlay, TerminalAt(*terminal).Route);
}

void TellSecret(const Call& call, std::string_view secret) {
    GetText(call.GameInPlay, SecretHeader);
    GetText(call.GameInPlay, secret);
    GetText(call.GameInPlay, EndOfFile);
}

enum class Match { Whole, Start };

struct Command {
    std::string_view Words;
    Match Against;
    void (*Answer)(const Call&);
};

// The first row that matches is run.
constexpr auto Commands = std::to_array<Command>({
    {"read message", Match::Whole, ReadMessage},
    {"send alert", Match::Start, SendAlert},
    {"send captain importance", Match::Start, [](const Call& call) { SendImportance(call, Kind::CaptainsCabin); }},
    {"send starport importance", Match::Start, [](const Call& call) { SendImportance(call, Kind::Hangar); }},
    {"send store importance", Match::Start, [](const Call& call) { SendImportance(call, Kind::Store); }},
    {"test dna processing", Match::Whole, TestDna},
    {"archive #", Match::Start, ListArchive},
    {"ping", Match::Start, Ping},
    {"secret in the cave", Match::Whole,
     [](const Call& call) {
         TellSecret(call, R"(Je-li stisknuta klávesa "S" na správném místě, objeví se tajná mapa. Tuto technologii vymysleli elfové.)");
     }},
    {"length of program", Match::Whole,
     [](const Call& call) { TellSecret(call, "Program obsahuje 3171 řádek kódu a 90 příběhových proměnných. Tolerance +/- 2%."); }},
});

}  // namespace

void RunTerminalCommand(Game& game, std::size_t terminal, std::string_view line) {
    const std::string lowered = text::LowerAscii(line);
    const auto command = std::ranges::find_if(Commands, [&](const Command& each) {
        return each.Against == Match::Whole ? lowered == each.Words : lowered.starts_with(each.Words);
    });
    if (command == Commands.end()) return ReplyError(game, "Neznámý příkaz!");
    command->Answer({.GameInPlay = game, .Terminal = terminal, .Line = line});
}
