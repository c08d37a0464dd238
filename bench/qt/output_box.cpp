// How long the screen takes for one reply, copied, scrolled to and painted: in an output box of 10 lines and in one of 1,990.
#include <algorithm>
#include <chrono>
#include <iostream>
#include <vector>

#include "ui/input.h"
#include "ui/qt/application.h"
#include "ui/qt/qt_desktop.h"

namespace {

constexpr int Replies = 60;
constexpr std::string_view Reply = "\r\n\r\nZkusil jsi to, ale dveře jsou zamčené a klíč nikde.";

double MedianMilliseconds(ui::Windows& windows, ui::qt::QtDesktop& desktop, std::size_t lines) {
    ui::TextBox& box = windows.Form1.Text1;
    QWidget& view = *desktop.WidgetOf(windows.Form1.Window).WidgetOf(&box);
    const auto say = [&] {
        box.AppendText(Reply);
        box.MoveCaretToEnd();
    };
    std::vector<double> times;
    for (int reply = 0; reply < Replies; ++reply) {
        desktop.Enter([&] {
            box.SetText("");
            while (desktop.CountLines(box) + 2 <= lines) say();
        });
        view.repaint();
        const auto start = std::chrono::steady_clock::now();
        desktop.Enter(say);
        view.repaint();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    std::ranges::nth_element(times, times.begin() + Replies / 2);
    return times[Replies / 2];
}

}  // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const ui::qt::Application application(argc, argv);
    ui::Windows windows;
    ui::qt::QtDesktop desktop(windows);
    desktop.Enter([&] {
        windows.Form1.Text1.SetVisible(true);
        ui::Show(windows, windows.Form1.Window);
    });
    const double few = MedianMilliseconds(windows, desktop, 10);
    const double many = MedianMilliseconds(windows, desktop, 1990);
    std::cout << "a reply at 10 lines: " << few << " ms\na reply at 1990 lines: " << many << " ms\nmore by " << many - few << " ms, "
              << many / few << " times\n";
    return many <= few + 1 ? 0 : 1;
}
