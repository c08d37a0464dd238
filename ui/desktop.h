// What the game asks of the screen beyond the models of its windows.
// A desktop mirrors the models; it changes them through ui/input.h and TextBox::EditText, and nowhere else.
#pragma once

#include <string_view>

#include "ui/controls.h"

namespace ui {

class Desktop {
public:
    virtual ~Desktop() = default;

    // Whether text set in this font family looks and measures as it should: the family is installed, or one with the same metrics.
    virtual bool HasFontFamily(std::string_view name) const = 0;

    // A message with one OK button; returns when it is acknowledged.
    virtual void ShowMessageBox(std::string_view text, std::string_view title) = 0;

    // Tells in a place beside the windows what a panel has done, because the panel itself does not say it. Desktops without such a place do
    // nothing.
    virtual void ShowNotice(std::string_view /*sentence*/) {}

    // Shows the form, which alone takes input, and returns when it has been hidden.
    virtual void ShowModal(Form& form) = 0;

    // How many lines the box displays.
    virtual std::size_t CountLines(const TextBox& box) const = 0;
};

}  // namespace ui
