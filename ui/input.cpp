#include "ui/input.h"

#include <algorithm>
#include <cassert>

#include "text/characters.h"

namespace ui {

namespace {

Form& FormOf(Windows& windows, const Control& control) {
    const auto form = std::ranges::find_if(
        windows.All, [&](const Form* each) { return std::ranges::find(each->Controls, control) != each->Controls.end(); });
    assert(form != windows.All.end());
    return **form;
}

void RaiseGotFocus(const Control& control) {
    if (auto* const* box = std::get_if<TextBox*>(&control); box && (*box)->GotFocus) (*box)->GotFocus();
    if (auto* const* list = std::get_if<ListBox*>(&control); list && (*list)->GotFocus) (*list)->GotFocus();
}

std::optional<Control> FirstThatTakesFocus(const Form& form) {
    const auto control = std::ranges::find_if(form.Controls, TakesFocus);
    return control == form.Controls.end() ? std::nullopt : std::optional(*control);
}

void InsertAtCaret(TextBox& box, char32_t character) {
    std::string text = box.Text().substr(0, box.Caret());
    text::AppendCharacter(text, character);
    const std::size_t caret = text.size();
    box.EditText(text + box.Text().substr(box.Caret()), caret);
}

void DeleteBeforeCaret(TextBox& box) {
    const std::string_view before = text::DropLastChar(std::string_view(box.Text()).substr(0, box.Caret()));
    box.EditText(std::string(before) + box.Text().substr(box.Caret()), before.size());
}

}  // namespace

void GiveFocus(Windows& windows, const Control& control) {
    Form& form = FormOf(windows, control);
    if (!TakesFocus(control) || (windows.Active == &form && form.Focused == control)) return;
    windows.Active = &form;
    form.Focused = control;
    RaiseGotFocus(control);
}

void GiveFocus(Windows& windows, Form& form) {
    if (windows.Active == &form || !form.Visible) return;
    windows.Active = &form;
    if (!form.Focused) form.Focused = FirstThatTakesFocus(form);
    if (form.GotFocus) form.GotFocus();
    if (form.Focused && windows.Active == &form) RaiseGotFocus(*form.Focused);
}

bool TakesFocus(const Control& control) {
    if (auto* const* box = std::get_if<TextBox*>(&control)) return (*box)->Visible();
    return std::holds_alternative<ListBox*>(control);
}

void Show(Windows& windows, Form& form) {
    form.Visible = true;
    GiveFocus(windows, form);
}

void Hide(Form& form) {
    form.Visible = false;
}

bool AnnounceKey(TextBox& box, char32_t key) {
    if (box.KeyDown) box.KeyDown(static_cast<int>(key));
    return box.KeyPress && box.KeyPress(key);
}

void PressKey(Windows& windows, TextBox& box, char32_t key) {
    GiveFocus(windows, &box);
    if (AnnounceKey(box, key) || box.Layout.ReadOnly) return;
    if (key == key::Backspace) {
        DeleteBeforeCaret(box);
    } else if (key >= U' ') {
        InsertAtCaret(box, key);
    }
}

void ClickEntry(Windows& windows, ListBox& list, int index) {
    GiveFocus(windows, &list);
    list.Select(index);
    if (list.Click) list.Click();
}

void ClickLabel(Label& label) {
    if (label.Click) label.Click();
}

void PressKey(ListBox& list, char32_t key) {
    if (list.KeyPress) list.KeyPress(key);
}

}  // namespace ui
