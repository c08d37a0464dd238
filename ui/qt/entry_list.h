// A list box: rows of 16 pixels, only whole ones, scrolled by the row. Cursor keys click the entries of a list that keeps the focus; where
// the program passes the focus on, as in the main window, they move a mark, and Space or Enter clicks the marked entry.
#pragma once

#include <QAbstractScrollArea>

#include "ui/qt/event_sink.h"

namespace ui::qt {

class EntryList final : public QAbstractScrollArea {
public:
    EntryList(const EventSink& sink, ListBox& mirrored, QWidget* parent);

    const ListBox& Model() const { return list; }
    void Mirror();
    void Click(int index);
    int Marked() const { return marked; }  // the entry that the keyboard stands on

    // Where the entry stands in the viewport; empty while it is scrolled out of sight.
    QRect RowRect(int index) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }  // it is two clicks
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int EntryCount() const;
    int WholeRows() const;
    bool KeepsFocus() const;
    int RowUnderKey(int key, int from) const;  // the entry that a cursor key leads to, -1: none
    void Mark(int index);
    void TellMarked();
    void FitScrollBar();
    void ScrollTo(int index);

    const EventSink& events;
    ListBox& list;
    std::vector<std::string> shown;
    std::uint64_t mirroredChanges = 0;
    int marked = 0;
};

}  // namespace ui::qt
