// A list box: rows of 16 pixels, only whole ones, scrolled by the row.
#pragma once

#include <QAbstractScrollArea>

#include "ui/qt/entrance.h"

namespace ui::qt {

class EntryList final : public QAbstractScrollArea {
public:
    EntryList(const Entrance& door, ListBox& mirrored, QWidget* parent);

    const ListBox& Model() const { return list; }
    void Mirror();
    void Click(int index);

    // Where the entry stands in the viewport; empty while it is scrolled out of sight.
    QRect RowRect(int index) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }  // two clicks, not one
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int EntryCount() const;
    int WholeRows() const;
    int RowUnderKey(int key) const;  // the entry that a cursor key leads to, -1: none
    void FitScrollBar();
    void ScrollTo(int index);

    const Entrance& entrance;
    ListBox& list;
    std::vector<std::string> shown;
    std::uint64_t mirroredChanges = 0;
};

}  // namespace ui::qt
