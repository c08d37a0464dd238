#include "ui/qt/qt_desktop.h"

#include <QGuiApplication>
#include <algorithm>

#include "ui/errors.h"
#include "ui/input.h"
#include "ui/qt/look.h"

namespace ui::qt {

namespace {

// Not on Wayland, where no window can be kept behind the others: a backdrop would cover the game.
bool CanStackWindows() {
    return !QGuiApplication::platformName().startsWith("wayland");
}

}  // namespace

QtDesktop::~QtDesktop() {
    entry.Run(EndProcess);  // because the widgets still send events while they are destroyed
}

void QtDesktop::Enter(const std::function<void()>& event) {
    if (openBox == nullptr) return Handle(event);
    if (entry.Ended()) return;
    // The event came from a window behind the message box.
    openBox->raise();
    openBox->activateWindow();
}

void QtDesktop::Handle(const std::function<void()>& event) {
    if (mirroring) return;
    const Outcome outcome = entry.Run(event);
    if (!outcome.Complaint.empty()) return Handle([&] { ShowMessageBox(outcome.Complaint, ErrorTitle); });
    if (!outcome.Ended) Mirror();
    const bool leavesLoop = outcome.Ended || (entry.Modal() != nullptr && !entry.Modal()->Visible);
    if (leavesLoop && !loops.empty()) loops.back()->quit();
}

void QtDesktop::Run() {
    Mirror();
    RunLoop();
}

void QtDesktop::RunLoop() {
    if (entry.Ended()) return;
    QEventLoop loop;
    loops.push_back(&loop);
    loop.exec();
    loops.pop_back();
}

void QtDesktop::ShowModal(Form& form) {
    entry.ShowModal(form, [&] {
        Mirror();
        if (form.Visible) RunLoop();
    });
}

void QtDesktop::ShowMessageBox(std::string_view text, std::string_view title) {
    QWidget* const owner = windows.Active != nullptr ? &WidgetOf(*windows.Active) : nullptr;
    QMessageBox message(QMessageBox::NoIcon, ToQt(title), ToQt(text), QMessageBox::Ok, owner);
    message.setWindowFlag(Qt::WindowStaysOnTopHint);
    QObject::connect(&message, &QDialog::finished, [this] { loops.back()->quit(); });
    openBox = &message;
    Mirror();
    message.setEnabled(true);  // because it would be disabled like its owner
    message.setModal(false);   // because Qt would let no close box work behind a modal one
    message.show();
    RunLoop();
    openBox = nullptr;
    if (entry.Ended()) EndProcess();
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
    if (!widget) widget = std::make_unique<FormWidget>(sink, *windows.All.at(static_cast<std::size_t>(place)));
    return *widget;
}

void QtDesktop::Mirror() {
    mirroring = true;
    // The main window comes first because the player waits for it; the backdrop is then put behind it.
    for (std::size_t place = 0; place < forms.size(); ++place) {
        const Form& form = *windows.All[place];
        if (!forms[place] && !form.Visible) continue;
        if (form.Layout.Backdrop && !CanStackWindows()) continue;
        WidgetOf(form).Mirror(openBox == nullptr && !entry.IsShut(form), form.Layout.IsPanel() ? &WidgetOf(windows.Form1.Window) : nullptr);
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
