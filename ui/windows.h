// The game's five windows with their controls under their own names, and which of them has the focus.
#pragma once

#include <array>
#include <string_view>

#include "ui/controls.h"

namespace ui {

constexpr std::string_view NothingThere = "---";  // the first entry of a list that offers nothing

struct MainWindow {
    MainWindow();
    TextBox Text1;                 // output
    TextBox Text2;                 // command line
    ListBox List1;                 // carried things
    std::array<ListBox, 3> List2;  // verbs, objects, targets
    Label Label3;                  // caption of the button
    Label Label1;                  // what takes the click on it
    Form Window;
};

struct TerminalWindow {
    TerminalWindow();
    TextBox Text1;  // output
    TextBox Text2;  // input line
    Label Label1;   // caption of the button
    Label Label2;   // what takes the click on it
    Form Window;
};

struct KeypadWindow {
    KeypadWindow();
    Label Label1;   // display
    TextBox Text1;  // code entry
    Label Label2;   // caption of the button
    Label Label3;   // what takes the click on it
    Form Window;
};

struct SystemWindow {
    SystemWindow();
    ListBox List1;  // saved games
    TextBox Text1;  // command line
    Label Label1;   // caption of the button
    Label Label2;   // what takes the click on it
    Form Window;
};

struct BackdropWindow {
    Form Window{.Layout = Form5Layout, .Controls = {}};
};

struct Windows {
    Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    MainWindow Form1;
    TerminalWindow Form2;
    KeypadWindow Form3;
    SystemWindow Form4;
    BackdropWindow Form5;

    std::array<Form*, 5> All;
    Form* Active = nullptr;  // the window that has the focus
    bool BusyPointer = false;
};

}  // namespace ui
