#include "ui/qt/label_area.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "ui/input.h"
#include "ui/qt/keys.h"
#include "ui/qt/look.h"

namespace ui::qt {

LabelArea::LabelArea(const EventSink& sink, Label& mirrored, QWidget* parent) : events(sink), label(mirrored) {
    // Newer Qt tells screen readers of a widget as soon as it has a parent. In the constructor of QWidget this would be no LabelArea yet.
    setParent(parent);
    setGeometry(Pixels(label.Layout.Bounds));
    setFont(ToQt(label.Layout.Font));
    if (label.Click) setFocusPolicy(Qt::TabFocus);
}

void LabelArea::Mirror() {
    if (mirroredChanges == label.Changes()) return;
    mirroredChanges = label.Changes();
    update();
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void LabelArea::Click() {
    events.Enter([this] { ClickLabel(label); });
}

void LabelArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (label.Layout.Background) painter.fillRect(rect(), ToQt(*label.Layout.Background));
    painter.setPen(ToQt(label.TextColour()));
    painter.drawText(rect(), Qt::AlignCenter, ToQt(label.Caption()));
    if (!hasFocus()) return;
    painter.setPen(QPen(ToQt(Cyan), 1, Qt::DotLine));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void LabelArea::keyPressEvent(QKeyEvent* event) {
    const char32_t character = CharacterOf(*event);
    if (character == U' ' || character == key::Enter) return Click();
    event->ignore();
}

void LabelArea::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void LabelArea::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Click();
}

}  // namespace ui::qt
