#include "ui/windows.h"

#include <algorithm>
#include <cassert>

namespace ui {

namespace {

constexpr auto VerbEntries = std::to_array<std::string_view>({"Jdi", "Prozkoumej", "Použij", "Vezmi", "Polož", "Otevři", "Zavři", "Oslov",
                                                              "Vymaž", "Nahraj pozici", "Ulož pozici", "Verze", "Exit"});

const ControlLayout& Row(const FormLayout& form, std::string_view name) {
    const auto row = std::ranges::find(form.Controls, name, &ControlLayout::Name);
    assert(row != form.Controls.end());
    return *row;
}

}  // namespace

MainWindow::MainWindow()
    : Text1(Row(Form1Layout, "Text1")),
      Text2(Row(Form1Layout, "Text2")),
      List1(Row(Form1Layout, "List1")),
      List2{ListBox(Row(Form1Layout, "List2(0)")), ListBox(Row(Form1Layout, "List2(1)")), ListBox(Row(Form1Layout, "List2(2)"))},
      Label3(Row(Form1Layout, "Label3")),
      Label1(Row(Form1Layout, "Label1")),
      Window{.Layout = Form1Layout, .Controls = {&Text1, &Text2, &List1, &List2[0], &List2[1], &List2[2], &Label3, &Label1}} {
    List1.Append(NothingThere);
    for (const std::string_view verb : VerbEntries) List2[0].Append(verb);
}

TerminalWindow::TerminalWindow()
    : Text1(Row(Form2Layout, "Text1")),
      Text2(Row(Form2Layout, "Text2")),
      Label1(Row(Form2Layout, "Label1")),
      Label2(Row(Form2Layout, "Label2")),
      Window{.Layout = Form2Layout, .Controls = {&Text1, &Text2, &Label1, &Label2}} {}

KeypadWindow::KeypadWindow()
    : Label1(Row(Form3Layout, "Label1")),
      Text1(Row(Form3Layout, "Text1")),
      Label2(Row(Form3Layout, "Label2")),
      Label3(Row(Form3Layout, "Label3")),
      Window{.Layout = Form3Layout, .Controls = {&Label1, &Text1, &Label2, &Label3}} {}

SystemWindow::SystemWindow()
    : List1(Row(Form4Layout, "List1")),
      Text1(Row(Form4Layout, "Text1")),
      Label1(Row(Form4Layout, "Label1")),
      Label2(Row(Form4Layout, "Label2")),
      Window{.Layout = Form4Layout, .Controls = {&List1, &Text1, &Label1, &Label2}} {}

Windows::Windows() : All{&Form1.Window, &Form2.Window, &Form3.Window, &Form4.Window, &Form5.Window} {}

}  // namespace ui
