// The five windows on a screen that nobody sees, with just enough handlers to have the focus go where the game sends it.
#pragma once

#include <QtTest/QTest>
#include <string_view>

#include "ui/errors.h"
#include "ui/input.h"
#include "ui/qt/qt_desktop.h"

struct Screen {
    Screen() {
        using ui::GiveFocus;
        for (ui::TextBox* input : {&windows.Form1.Text2, &windows.Form2.Text2, &windows.Form3.Text1, &windows.Form4.Text1}) {
            input->GotFocus = [input] { input->SetCaretShape({1, 7}); };
        }
        for (ui::ListBox* list : {&windows.Form1.List1, &windows.Form1.List2[0], &windows.Form1.List2[1], &windows.Form1.List2[2]}) {
            list->GotFocus = [this] { GiveFocus(windows, windows.Form1.Text2); };
        }
        windows.Form1.Text1.GotFocus = [this] { GiveFocus(windows, windows.Form1.Text2); };
        windows.Form5.Window.GotFocus = [this] { GiveFocus(windows, windows.Form1.Window); };
        windows.Form1.Window.CloseBox = [] { ui::EndProcess(); };
    }

    // What a handler of the game would do.
    void Do(const std::function<void()>& event) {
        desktop.Enter(event);
        QCoreApplication::processEvents();
    }
    void Show(ui::Form& form) {
        Do([&] { ui::Show(windows, form); });
    }

    ui::qt::FormWidget& Widget(const ui::Form& form) const { return desktop.WidgetOf(form); }

    template <class Kind>
    Kind& Widget(const ui::Form& form, const ui::Control& control) const {
        return dynamic_cast<Kind&>(*Widget(form).WidgetOf(control));
    }

    // The window as it is painted, each pixel of the layout `devicePixelRatio` of the image's.
    QImage Picture(const ui::Form& form) const { return Widget(form).grab().toImage(); }

    ui::Windows windows;
    ui::qt::QtDesktop desktop{windows};
};
