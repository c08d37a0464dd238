// Where the widgets hand over the player's events.
#pragma once

#include <functional>

#include "ui/windows.h"

namespace ui::qt {

struct EventSink {
    Windows& Model;
    // Runs the event, tells what went wrong in it, and copies to the screen whatever it changed. Never throws.
    std::function<void(const std::function<void()>& event)> Enter;
    // The same for a close box, which works behind a message box as well.
    std::function<void(const std::function<void()>& event)> Close;
};

}  // namespace ui::qt
