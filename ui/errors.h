// What can end or interrupt an event of the game.
#pragma once

#include <stdexcept>
#include <string_view>

namespace ui {

constexpr std::string_view ErrorTitle = "Chyba";  // of the message box that tells an error

// Before the words of an exception that nobody has foreseen.
constexpr std::string_view ProgramFault = "Neočekávaná chyba programu: ";

// A file could not be read or written. The message is a Czech sentence for the player. When an event fails with it, a message box shows it
// and the game goes on; when start-up fails with it, the program shows it and ends.
class GameError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The main window was unloaded: no later step of the running handler runs, and no later event. Only EventEntry catches it.
struct ProgramEnded {};

[[noreturn]] inline void EndProcess() {
    throw ProgramEnded{};
}

}  // namespace ui
