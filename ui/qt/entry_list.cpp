#include "ui/qt/entry_list.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "ui/input.h"
#include "ui/qt/keys.h"
#include "ui/qt/look.h"

namespace ui::qt {

namespace {

constexpr int TextMargin = 3;

}  // namespace

EntryList::EntryList(const EventSink& sink, ListBox& mirrored, QWidget* parent)
    : QAbstractScrollArea(parent), events(sink), list(mirrored) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setPalette(PaletteOf(list.Layout));
    setFont(ToQt(list.Layout.Font));
    setAccessibleName(ToQt(list.Layout.Spoken));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setGeometry(Pixels(list.Layout.Bounds));
    setFocusPolicy(Qt::TabFocus);  // not by click, because after a click the program decides who has the focus
    verticalScrollBar()->setSingleStep(1);
}

void EntryList::Mirror() {
    if (mirroredChanges == list.Changes()) return;
    mirroredChanges = list.Changes();
    if (shown != list.Entries()) {
        shown = list.Entries();
        verticalScrollBar()->setValue(0);
        FitScrollBar();
        marked = 0;
    }
    if (list.Selected() >= 0) Mark(list.Selected());
    viewport()->update();
}

void EntryList::Click(int index) {
    if (index < 0 || index >= EntryCount()) return;
    events.Enter([this, index] { ClickEntry(events.Model, list, index); });
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

void EntryList::Mark(int index) {
    const bool moved = std::exchange(marked, index) != index;
    ScrollTo(index);
    viewport()->update();
    if (moved && hasFocus()) TellMarked();
}

void EntryList::TellMarked() {
    QAccessibleEvent focused(this, QAccessible::Focus);
    focused.setChild(marked);
    if (marked < EntryCount()) QAccessible::updateAccessibility(&focused);
}

void EntryList::ScrollTo(int index) {
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
    painter.drawRect(QRectF(RowRect(marked)).adjusted(0.5, 0.5, -0.5, -0.5));
}

void EntryList::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int index = verticalScrollBar()->value() + static_cast<int>(event->position().y()) / RowHeight;
    if (index < EntryCount() && !RowRect(index).isEmpty()) return Click(index);
    events.Enter([this] { GiveFocus(events.Model, &list); });
}

bool EntryList::KeepsFocus() const {
    const Form* const active = events.Model.Active;
    return active != nullptr && active->Focused == Control(&list);
}

int EntryList::RowUnderKey(int key, int from) const {
    const int last = EntryCount() - 1;
    switch (key) {
        case Qt::Key_Up: return std::max(from - 1, 0);
        case Qt::Key_Down: return std::min(from + 1, last);
        case Qt::Key_PageUp: return std::max(from - WholeRows(), 0);
        case Qt::Key_PageDown: return std::min(std::max(from, 0) + WholeRows(), last);
        case Qt::Key_Home: return 0;
        case Qt::Key_End: return last;
        default: return -1;
    }
}

void EntryList::keyPressEvent(QKeyEvent* event) {
    if (IsShortcut(*event)) return event->ignore();
    const bool keeps = KeepsFocus();
    if (const int row = RowUnderKey(event->key(), keeps ? list.Selected() : marked); row >= 0) return keeps ? Click(row) : Mark(row);
    const char32_t character = CharacterOf(*event);
    if (character != 0 && keeps) return events.Enter([&] { PressKey(list, character); });
    if (character == U' ' || character == key::Enter) return Click(marked);
    event->ignore();
}

void EntryList::focusInEvent(QFocusEvent*) {
    events.Enter([this] { GiveFocus(events.Model, &list); });
    viewport()->update();
    TellMarked();
}

void EntryList::focusOutEvent(QFocusEvent*) {
    viewport()->update();
}

void EntryList::resizeEvent(QResizeEvent*) {
    FitScrollBar();
}

}  // namespace ui::qt
