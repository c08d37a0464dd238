#include "ui/qt/label_area.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>

#include "ui/input.h"
#include "ui/qt/look.h"

namespace ui::qt {

LabelArea::LabelArea(const Entrance& door, Label& mirrored, QWidget* parent) : QWidget(parent), entrance(door), label(mirrored) {
    setGeometry(Pixels(label.Layout.Bounds));
    setFont(ToQt(label.Layout.Font));
}

void LabelArea::Mirror() {
    if (mirroredChanges == label.Changes()) return;
    mirroredChanges = label.Changes();
    update();
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
}

void LabelArea::Click() {
    entrance.Enter([this] { ClickLabel(label); });
}

void LabelArea::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (label.Layout.Background) painter.fillRect(rect(), ToQt(*label.Layout.Background));
    painter.setPen(ToQt(label.TextColour()));
    painter.drawText(rect(), Qt::AlignCenter, ToQt(label.Caption()));
}

void LabelArea::mousePressEvent(QMouseEvent* event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void LabelArea::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) Click();
}

}  // namespace ui::qt
