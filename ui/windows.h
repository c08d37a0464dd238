// The game's five windows with their controls under their own names, and which of them has the focus.
#pragma once

#include <array>
#include <string_view>

#include "ui/controls.h"

namespace ui {

constexpr std::string_view NothingThere = "---";  // the first entry of a list that offers nothing

struct MainWindow {
    MainWindow();
    TextBox Text1, Text2;
    ListBox List1;
    std::array<ListBox, 3> List2;
    Label Label3, Label1;
    Form Window;
};

struct TerminalWindow {
    TerminalWindow();
    TextBox Text1, Text2;
    Label Label1, Label2;
    Form Window;
};

struct KeypadWindow {
    KeypadWindow();
    Label Label1;
    TextBox Text1;
    Label Label2, Label3;
    Form Window;
};

struct SystemWindow {
    SystemWindow();
    ListBox List1;
    TextBox Text1;
    Label Label1, Label2;
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
