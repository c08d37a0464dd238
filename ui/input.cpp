#include "ui/input.h"

#include <algorithm>
#include <cassert>
#include <iterator>

#include "text/characters.h"

namespace ui {

namespace {

Form& FormOf(Windows& windows, const Control& control) {
    const auto form = std::ranges::find_if(
        windows.All, [&](const Form* each) { return std::ranges::find(each->Controls, control) != each->Controls.end(); });
    assert(form != windows.All.end());
    return **form;
}

void GiveFocusTo(Windows& windows, const Control& control, const std::function<void()>& gotFocus) {
    Form& form = FormOf(windows, control);
    if (windows.Active == &form && form.Focused == control) return;
    windows.Active = &form;
    form.Focused = control;
    if (gotFocus) gotFocus();
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

void GiveFocus(Windows& windows, TextBox& box) {
    GiveFocusTo(windows, &box, box.GotFocus);
}

void GiveFocus(Windows& windows, ListBox& list) {
    GiveFocusTo(windows, &list, list.GotFocus);
}

void GiveFocus(Windows& windows, Form& form) {
    if (windows.Active == &form || !form.Visible) return;
    windows.Active = &form;
    if (!form.Focused) form.Focused = FirstThatTakesFocus(form);
    if (form.GotFocus) form.GotFocus();
    if (!form.Focused || windows.Active != &form) return;
    if (auto* const* box = std::get_if<TextBox*>(&*form.Focused); box && (*box)->GotFocus) (*box)->GotFocus();
    if (auto* const* list = std::get_if<ListBox*>(&*form.Focused); list && (*list)->GotFocus) (*list)->GotFocus();
}

bool TakesFocus(const Control& control) {
    if (auto* const* box = std::get_if<TextBox*>(&control)) return (*box)->Visible();
    return std::holds_alternative<ListBox*>(control);
}

void WalkTabOrder(Windows& windows, Form& form, bool forward) {
    std::vector<Control> order;
    std::ranges::copy_if(form.Controls, std::back_inserter(order), TakesFocus);
    if (!forward) std::ranges::reverse(order);
    const auto here = form.Focused ? std::ranges::find(order, *form.Focused) : order.end();
    if (here == order.end()) return;
    std::rotate(order.begin(), here, order.end());
    const Control next = order[order.size() > 1 ? 1 : 0];
    if (auto* const* box = std::get_if<TextBox*>(&next)) GiveFocus(windows, **box);
    if (auto* const* list = std::get_if<ListBox*>(&next)) GiveFocus(windows, **list);
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
    GiveFocus(windows, box);
    if (AnnounceKey(box, key) || box.Layout.ReadOnly) return;
    if (key == key::Backspace) {
        DeleteBeforeCaret(box);
    } else if (key >= U' ') {
        InsertAtCaret(box, key);
    }
}

void ClickEntry(Windows& windows, ListBox& list, int index) {
    GiveFocus(windows, list);
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
