// Starts the toolkit. It lives as long as there are windows.
#pragma once

#include <QApplication>
#include <optional>
#include <string>

namespace ui::qt {

// Makes Qt use X11 where both X11 and Wayland are there. Returns a Czech sentence when there is no screen to show a window on. Comes before
// the Application.
std::optional<std::string> ChoosePlatform();

class Application {
public:
    Application(int& argumentCount, char** arguments);

private:
    QApplication application;
};

}  // namespace ui::qt
