// The one door through which Qt's events come to the game, as the widgets see it.
#pragma once

#include <functional>

#include "ui/windows.h"

namespace ui::qt {

struct Entrance {
    Windows& Model;
    // Runs the event, catches what ends or interrupts it, and copies to the screen whatever it changed. Never throws.
    std::function<void(const std::function<void()>& event)> Enter;
    // The same for a close box, which works behind a message box as well.
    std::function<void(const std::function<void()>& event)> Close;
};

}  // namespace ui::qt
