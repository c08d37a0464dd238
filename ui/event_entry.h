// The one way by which events come to the game's handlers, the same on every desktop.
#pragma once

#include <functional>
#include <string>

#include "ui/windows.h"

namespace ui {

// How an event went: done, the end of the program, or a Czech sentence to tell the player before the game goes on.
struct Outcome {
    bool Ended = false;
    std::string Complaint{};
};

class EventEntry {
public:
    explicit EventEntry(Windows& entered) : windows(entered) {}

    // Runs a handler and catches whatever it throws. Once the program has ended, nothing runs.
    Outcome Run(const std::function<void()>& event);

    // Shows the form, which alone takes input while `playEvents` waits for it to hide, and then gives the focus back. Throws ProgramEnded
    // when the program has ended meanwhile.
    void ShowModal(Form& form, const std::function<void()>& playEvents);

    bool Ended() const { return ended; }
    const Form* Modal() const { return modal; }  // the innermost; nullptr: none
    bool IsShut(const Form& form) const { return modal != nullptr && modal != &form; }

private:
    Windows& windows;
    const Form* modal = nullptr;
    bool ended = false;
};

}  // namespace ui
