#include "ui/qt/qt_desktop.h"

#include <QGuiApplication>
#include <algorithm>
#include <exception>
#include <utility>

#include "ui/errors.h"
#include "ui/input.h"
#include "ui/qt/look.h"

namespace ui::qt {

namespace {

// Elsewhere, as on Wayland, nothing could be kept behind the other windows: a backdrop would cover the game.
bool CanStackWindows() {
    return !QGuiApplication::platformName().startsWith("wayland");
}

}  // namespace

QtDesktop::~QtDesktop() {
    ended = true;  // the widgets' last events find nobody
}

void QtDesktop::Enter(const std::function<void()>& event) {
    if (openBox == nullptr) return Handle(event);
    if (ended) return;
    // The player turned to a window behind the message.
    openBox->raise();
    openBox->activateWindow();
}

void QtDesktop::Handle(const std::function<void()>& event) {
    if (ended || mirroring) return;
    std::string complaint;
    try {
        event();
    } catch (const ProgramEnded&) {
        ended = true;
        if (!loops.empty()) loops.back()->quit();
        return;
    } catch (const GameError& error) {
        complaint = error.what();
    } catch (const std::exception& error) {
        complaint = std::string("Neočekávaná chyba programu: ").append(error.what());
    }
    if (!complaint.empty()) return Handle([&] { ShowMessageBox(complaint, "Chyba"); });
    Mirror();
    if (modal != nullptr && !modal->Visible) loops.back()->quit();
}

void QtDesktop::Run() {
    Mirror();
    RunLoop();
}

void QtDesktop::RunLoop() {
    if (ended) return;
    QEventLoop loop;
    loops.push_back(&loop);
    loop.exec();
    loops.pop_back();
}

void QtDesktop::ShowModal(Form& form) {
    Form* const behind = windows.Active;
    Show(windows, form);  // before it is modal: should it throw, nothing shuts the other windows
    Form* const outer = std::exchange(modal, &form);
    Mirror();
    if (form.Visible) RunLoop();
    modal = outer;
    if (ended) EndProcess();
    if (behind != nullptr) GiveFocus(windows, *behind);
}

void QtDesktop::ShowMessageBox(std::string_view text, std::string_view title) {
    QWidget* const owner = windows.Active != nullptr ? &WidgetOf(*windows.Active) : nullptr;
    QMessageBox message(QMessageBox::NoIcon, ToQt(title), ToQt(text), QMessageBox::Ok, owner);
    message.setWindowFlag(Qt::WindowStaysOnTopHint);
    QObject::connect(&message, &QDialog::finished, [this] { loops.back()->quit(); });
    openBox = &message;
    Mirror();
    message.setEnabled(true);  // which its owner is not
    message.setModal(false);   // for Qt, which would let no close box work behind it
    message.show();
    RunLoop();
    openBox = nullptr;
    if (ended) EndProcess();
}

std::size_t QtDesktop::CountLines(const TextBox& box) const {
    for (const Form* form : windows.All) {
        const auto control = std::ranges::find_if(form->Controls, [&box](const Control& each) {
            auto* const* candidate = std::get_if<TextBox*>(&each);
            return candidate != nullptr && *candidate == &box;
        });
        if (control == form->Controls.end()) continue;
        if (auto* view = dynamic_cast<OutputView*>(WidgetOf(*form).WidgetOf(*control))) return view->CountLines();
    }
    return 1;
}

bool QtDesktop::HasFontFamily(std::string_view name) const {
    return qt::HasFontFamily(name);
}

FormWidget& QtDesktop::WidgetOf(const Form& form) const {
    const auto place = std::ranges::find(windows.All, &form) - windows.All.begin();
    auto& widget = forms.at(static_cast<std::size_t>(place));
    if (!widget) widget = std::make_unique<FormWidget>(entrance, *windows.All.at(static_cast<std::size_t>(place)));
    return *widget;
}

void QtDesktop::Mirror() {
    mirroring = true;
    // The main window, for which the player waits, comes first; the backdrop slips in behind it.
    for (std::size_t place = 0; place < forms.size(); ++place) {
        const Form& form = *windows.All[place];
        if (!forms[place] && !form.Visible) continue;
        if (form.Layout.Backdrop && !CanStackWindows()) continue;
        const bool panel = !form.Layout.Framed && !form.Layout.Backdrop;
        WidgetOf(form).Mirror(openBox == nullptr && (modal == nullptr || modal == &form),
                              panel ? &WidgetOf(windows.Form1.Window) : nullptr);
    }
    MirrorPointer();
    if (windows.Active != nullptr && windows.Active->Visible) WidgetOf(*windows.Active).MirrorFocus();
    mirroring = false;
}

void QtDesktop::MirrorPointer() {
    const bool busy = QGuiApplication::overrideCursor() != nullptr;
    if (windows.BusyPointer && !busy) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (!windows.BusyPointer && busy) QGuiApplication::restoreOverrideCursor();
}

}  // namespace ui::qt
