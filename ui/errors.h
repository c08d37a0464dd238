// What can end or interrupt an event of the game.
#pragma once

#include <stdexcept>

namespace ui {

// A file would not do as it should. The message is a Czech sentence for the player: the event entry shows it in a message box
// and the game goes on; when start-up fails with it, the program shows it and ends.
class GameError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The main window was unloaded: no later step of the running handler and no later event. Only a desktop's event entry catches it.
struct ProgramEnded {};

[[noreturn]] inline void EndProcess() {
    throw ProgramEnded{};
}

}  // namespace ui
