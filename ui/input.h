// The rules of behaviour that every desktop shares: who gets the focus, what a key or a click does to a control and in which order its
// events come.
#pragma once

#include "ui/windows.h"

namespace ui {

namespace key {
enum : char32_t { Backspace = 8, Enter = 13, Escape = 27 };
}

// Whether the control can have the focus at all: a visible text box or a list.
bool TakesFocus(const Control& control);

void GiveFocus(Windows& windows, const Control& control);  // one that cannot have it is left alone
void GiveFocus(Windows& windows, Form& form);              // a hidden form is left alone

void Show(Windows& windows, Form& form);
void Hide(Form& form);

// A key pressed in a box: key-down, then key-press, then, unless it was swallowed or the box is read-only, the edit and its change event.
void PressKey(Windows& windows, TextBox& box, char32_t key);

// Key-down and key-press alone, for a desktop whose own widget does the edit and then reports it with TextBox::EditText; true: swallowed.
bool AnnounceKey(TextBox& box, char32_t key);

// Selects the entry, then raises the click event.
void ClickEntry(Windows& windows, ListBox& list, int index);

void ClickLabel(Label& label);

// A character typed while a list has the focus.
void PressKey(ListBox& list, char32_t key);

}  // namespace ui
