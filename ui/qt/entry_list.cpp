#include "ui/qt/entry_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "ui/input.h"
#include "ui/qt/keys.h"
#include "ui/qt/look.h"

namespace ui::qt {

namespace {

constexpr int TextMargin = 3;

}  // namespace

EntryList::EntryList(const Entrance& door, ListBox& mirrored, QWidget* parent)
    : QAbstractScrollArea(parent), entrance(door), list(mirrored) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setPalette(PaletteOf(list.Layout));
    setFont(ToQt(list.Layout.Font));
    setAccessibleName(ToQt(list.Layout.Spoken));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setGeometry(Pixels(list.Layout.Bounds));
    verticalScrollBar()->setSingleStep(1);
}

void EntryList::Mirror() {
    if (mirroredChanges == list.Changes()) return;
    mirroredChanges = list.Changes();
    if (shown != list.Entries()) {
        shown = list.Entries();
        verticalScrollBar()->setValue(0);
        FitScrollBar();
    }
    ScrollTo(list.Selected());
    viewport()->update();
}

void EntryList::Click(int index) {
    if (index < 0 || index >= EntryCount()) return;
    entrance.Enter([this, index] { ClickEntry(entrance.Model, list, index); });
}

QRect EntryList::RowRect(int index) const {
    const int row = index - verticalScrollBar()->value();
    if (row < 0 || row >= WholeRows()) return {};
    return {0, row * RowHeight, viewport()->width(), RowHeight};
}

int EntryList::EntryCount() const {
    return static_cast<int>(list.Entries().size());
}

int EntryList::WholeRows() const {
    return viewport()->height() / RowHeight;
}

void EntryList::FitScrollBar() {
    verticalScrollBar()->setPageStep(WholeRows());
    verticalScrollBar()->setRange(0, std::max(0, EntryCount() - WholeRows()));
}

void EntryList::ScrollTo(int index) {
    if (index < 0) return;
    const int top = verticalScrollBar()->value();
    verticalScrollBar()->setValue(std::clamp(top, index - WholeRows() + 1, index));
}

void EntryList::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().base());
    for (int index = verticalScrollBar()->value(); index < EntryCount(); ++index) {
        const QRect row = RowRect(index);
        if (row.isEmpty()) break;
        const bool selected = index == list.Selected();
        if (selected) painter.fillRect(row, palette().highlight());
        painter.setPen(selected ? palette().highlightedText().color() : palette().text().color());
        painter.drawText(row.adjusted(TextMargin, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, ToQt(list.Entry(index)));
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().text().color(), 1, Qt::DotLine));
    painter.drawRect(QRectF(RowRect(std::max(0, list.Selected()))).adjusted(0.5, 0.5, -0.5, -0.5));
}

void EntryList::mousePressEvent(QMouseEvent* event) {
    const int index = verticalScrollBar()->value() + static_cast<int>(event->position().y()) / RowHeight;
    if (event->button() == Qt::LeftButton && !RowRect(index).isEmpty()) Click(index);
}

int EntryList::RowUnderKey(int key) const {
    const int last = EntryCount() - 1;
    const int selected = list.Selected();
    switch (key) {
        case Qt::Key_Up: return std::max(selected - 1, 0);
        case Qt::Key_Down: return std::min(selected + 1, last);
        case Qt::Key_PageUp: return std::max(selected - WholeRows(), 0);
        case Qt::Key_PageDown: return std::min(std::max(selected, 0) + WholeRows(), last);
        case Qt::Key_Home: return 0;
        case Qt::Key_End: return last;
        default: return -1;
    }
}

void EntryList::keyPressEvent(QKeyEvent* event) {
    if (const int row = RowUnderKey(event->key()); row >= 0) return Click(row);
    if (const char32_t character = CharacterOf(*event)) return entrance.Enter([&] { PressKey(list, character); });
    event->ignore();
}

void EntryList::focusInEvent(QFocusEvent*) {
    entrance.Enter([this] { GiveFocus(entrance.Model, list); });
    viewport()->update();
}

void EntryList::focusOutEvent(QFocusEvent*) {
    viewport()->update();
}

void EntryList::resizeEvent(QResizeEvent*) {
    FitScrollBar();
}

}  // namespace ui::qt
