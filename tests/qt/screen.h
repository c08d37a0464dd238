// The game at its title, on a screen that nobody sees.
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>
#include <string_view>

#include "app/start_up.h"
#include "ui/errors.h"
#include "ui/input.h"
#include "ui/qt/qt_desktop.h"

// Runs while an inner event loop waits.
inline void Later(const std::function<void()>& event) {
    QTimer::singleShot(0, qApp, event);
}

inline QMessageBox* OpenMessageBox() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<QMessageBox*>(widget); box != nullptr && box->isVisible()) return box;
    }
    return nullptr;
}

struct Screen {
    Screen() {
        Later([] {
            if (auto* box = OpenMessageBox()) box->accept();  // no Arial here
        });
        Main(game, ORVEL_PROGRAM_FOLDER);
        Do([] {});
    }

    // Runs the code as a handler of the game.
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
    Game game{windows, desktop, [] { return 0.5; }};
};
