#include "ui/windows.h"

#include <algorithm>
#include <cassert>

namespace ui {

namespace {

const ControlLayout& Row(const FormLayout& form, std::string_view name) {
    const auto row = std::ranges::find(form.Controls, name, &ControlLayout::Name);
    assert(row != form.Controls.end());
    return *row;
}

}  // namespace

MainWindow::MainWindow(std::vector<Form*>& all)
    : Text1(Row(Form1Layout, "Text1")),
      Text2(Row(Form1Layout, "Text2")),
      List1(Row(Form1Layout, "List1")),
      List2{ListBox(Row(Form1Layout, "List2(0)")), ListBox(Row(Form1Layout, "List2(1)")), ListBox(Row(Form1Layout, "List2(2)"))},
      Label3(Row(Form1Layout, "Label3")),
      Label1(Row(Form1Layout, "Label1")),
      Window(Form1Layout, {&Text1, &Text2, &List1, &List2[0], &List2[1], &List2[2], &Label3, &Label1}, all) {}

TerminalWindow::TerminalWindow(std::vector<Form*>& all)
    : Text1(Row(Form2Layout, "Text1")),
      Text2(Row(Form2Layout, "Text2")),
      Label1(Row(Form2Layout, "Label1")),
      Label2(Row(Form2Layout, "Label2")),
      Window(Form2Layout, {&Text1, &Text2, &Label1, &Label2}, all) {}

KeypadWindow::KeypadWindow(std::vector<Form*>& all)
    : Label1(Row(Form3Layout, "Label1")),
      Text1(Row(Form3Layout, "Text1")),
      Label2(Row(Form3Layout, "Label2")),
      Label3(Row(Form3Layout, "Label3")),
      Window(Form3Layout, {&Label1, &Text1, &Label2, &Label3}, all) {}

SystemWindow::SystemWindow(std::vector<Form*>& all)
    : List1(Row(Form4Layout, "List1")),
      Text1(Row(Form4Layout, "Text1")),
      Label1(Row(Form4Layout, "Label1")),
      Label2(Row(Form4Layout, "Label2")),
      Window(Form4Layout, {&List1, &Text1, &Label1, &Label2}, all) {}

BackdropWindow::BackdropWindow(std::vector<Form*>& all) : Window(Form5Layout, {}, all) {}

}  // namespace ui
