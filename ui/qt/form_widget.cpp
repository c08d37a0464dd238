#include "ui/qt/form_widget.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "ui/input.h"
#include "ui/qt/look.h"
#include "ui/qt/png.h"
#include "ui/qt/region.h"

namespace ui::qt {

namespace {

Qt::WindowFlags FlagsOf(const Form& form) {
    Qt::WindowFlags flags = Qt::Window | Qt::CustomizeWindowHint;
    flags |= form.Layout.Framed ? Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint
                                : Qt::FramelessWindowHint;
    if (form.Layout.Backdrop) flags |= Qt::WindowStaysOnBottomHint;
    if (form.AlwaysOnTop) flags |= Qt::WindowStaysOnTopHint;
    return flags;
}

}  // namespace

FormWidget::FormWidget(const EventSink& sink, Form& mirrored) : QWidget(nullptr, FlagsOf(mirrored)), events(sink), form(mirrored) {
    setWindowTitle(ToQt(form.Layout.Caption));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_OpaquePaintEvent);
    if (!form.Layout.Backdrop) setFixedSize(form.Layout.Width / TwipsPerPixel, form.Layout.Height / TwipsPerPixel);
    setAttribute(Qt::WA_ShowWithoutActivating, form.Layout.Backdrop);
    setFocusPolicy(Qt::ClickFocus);  // a click on a list or a button comes here and is passed on as the program wants
    LoadPicture();
    for (const Control& control : form.Controls) controls.push_back(MakeWidget(control));
}

FormWidget::ControlWidget FormWidget::MakeWidget(const Control& control) {
    if (auto* const* list = std::get_if<ListBox*>(&control)) return new EntryList(events, **list, this);
    if (auto* const* label = std::get_if<Label*>(&control)) return new LabelArea(events, **label, this);
    TextBox& box = *std::get<TextBox*>(control);
    if (box.Layout.MultiLine) return new OutputView(events, box, this);
    return new InputLine(events, box, this);
}

QWidget* FormWidget::WidgetOf(const Control& control) const {
    const auto place = std::ranges::find(form.Controls, control) - form.Controls.begin();
    return std::visit([](auto* widget) -> QWidget* { return widget; }, controls.at(static_cast<std::size_t>(place)));
}

void FormWidget::Mirror(bool reachable, const FormWidget* owner) {
    setEnabled(reachable);
    MirrorLook();
    if (form.Visible && LoadPicture()) update();
    for (const ControlWidget& control : controls) std::visit([](auto* widget) { widget->Mirror(); }, control);
    if (form.Visible && !isVisible()) Place(owner);
    setVisible(form.Visible);
    if (!form.Visible) mirroredFocus.reset();
}

void FormWidget::MirrorLook() {
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) != form.AlwaysOnTop) setWindowFlag(Qt::WindowStaysOnTopHint, form.AlwaysOnTop);
    if (std::exchange(mirroredIcon, form.Icon) != form.Icon) setWindowIcon(QPixmap::fromImage(ReadPng(form.Icon)));
    if (form.Region && mask().isEmpty()) setMask(ClientRegion(*form.Region, size()));
}

void FormWidget::Place(const FormWidget* owner) {
    const QRect screenArea = screen()->geometry();
    if (form.Layout.Backdrop) {
        setGeometry(screenArea);
        winId();  // makes the native window, because only that can be put behind the others before it appears
        return lower();
    }
    QRect place(QPoint(), size());
    place.moveCenter(owner == nullptr ? screenArea.center() : owner->geometry().center());
    setGeometry(place);
    if (owner == nullptr) return;
    winId();
    windowHandle()->setTransientParent(owner->windowHandle());
}

void FormWidget::MirrorFocus() {
    const bool moved = std::exchange(mirroredFocus, form.Focused) != form.Focused;
    if (moved || focusWidget() == nullptr) FocusAsProgram();
    if (!isActiveWindow()) {
        raise();
        activateWindow();
    }
}

void FormWidget::FocusAsProgram() {
    if (form.Focused) WidgetOf(*form.Focused)->setFocus();
}

void FormWidget::TakeFocus() {
    events.Enter([this] {
        if (isEnabled()) GiveFocus(events.Model, form);
    });
}

bool FormWidget::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate) TakeFocus();
    return handled;
}

void FormWidget::mousePressEvent(QMouseEvent*) {
    TakeFocus();
}

void FormWidget::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (form.CloseBox) events.Close([this] { form.CloseBox(); });
}

void FormWidget::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return CopyOutput();
    QObject* const listener = form.Focused ? WidgetOf(*form.Focused) : nullptr;
    if (listener == nullptr || listener == focusWidget()) return event->ignore();
    listener->event(event);  // not by sendEvent, because Qt would bring an ignored key back here
}

void FormWidget::CopyOutput() {
    for (const ControlWidget& control : controls) {
        if (auto* const* view = std::get_if<OutputView*>(&control)) (*view)->copy();
    }
}

void FormWidget::focusInEvent(QFocusEvent*) {
    FocusAsProgram();
}

bool FormWidget::LoadPicture() {
    return !form.Picture.empty() && picture.Load(form.Picture, size(), devicePixelRatio());
}

void FormWidget::paintEvent(QPaintEvent*) {
    LoadPicture();  // because the window may have been moved to a screen of another density
    QPainter painter(this);
    const QPixmap& background = picture.Loaded();
    if (background.isNull()) return painter.fillRect(rect(), ToQt(form.Layout.Background));
    painter.drawPixmap(0, 0, background);
}

}  // namespace ui::qt
