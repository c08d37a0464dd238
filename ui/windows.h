// The game's five windows with their controls under their own names, and which of them has the focus.
#pragma once

#include <array>
#include <vector>

#include "ui/controls.h"

namespace ui {

struct MainWindow {
    explicit MainWindow(std::vector<Form*>& all);
    TextBox Text1;                 // output
    TextBox Text2;                 // command line
    ListBox List1;                 // carried things
    std::array<ListBox, 3> List2;  // verbs, objects, targets
    Label Label3;                  // caption of the button
    Label Label1;                  // click area over the caption
    Form Window;
};

struct TerminalWindow {
    explicit TerminalWindow(std::vector<Form*>& all);
    TextBox Text1;  // output
    TextBox Text2;  // input line
    Label Label1;   // caption of the button
    Label Label2;   // click area over the caption
    Form Window;
};

struct KeypadWindow {
    explicit KeypadWindow(std::vector<Form*>& all);
    Label Label1;   // display
    TextBox Text1;  // code entry
    Label Label2;   // caption of the button
    Label Label3;   // click area over the caption
    Form Window;
};

struct SystemWindow {
    explicit SystemWindow(std::vector<Form*>& all);
    ListBox List1;  // saved games
    TextBox Text1;  // command line
    Label Label1;   // caption of the button
    Label Label2;   // click area over the caption
    Form Window;
};

struct BackdropWindow {
    explicit BackdropWindow(std::vector<Form*>& all);
    Form Window;
};

struct Windows {
    Windows() = default;
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    std::vector<Form*> All;  // stands first, because each window enters itself here
    MainWindow Form1{All};
    TerminalWindow Form2{All};
    KeypadWindow Form3{All};
    SystemWindow Form4{All};
    BackdropWindow Form5{All};

    Form* Active = nullptr;  // the window that has the focus
    bool BusyPointer = false;
};

}  // namespace ui
