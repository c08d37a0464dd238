// Starts the toolkit. It lives as long as there are windows.
#pragma once

#include <QApplication>
#include <optional>
#include <string>

namespace ui::qt {

// A Czech sentence when there is no screen to show a window on. To be asked before the Application is made.
std::optional<std::string> WhyNoScreen();

class Application {
public:
    Application(int& argumentCount, char** arguments);

private:
    QApplication application;
};

}  // namespace ui::qt
