// A label: a centred caption, or a transparent area that takes clicks.
#pragma once

#include <QWidget>

#include "ui/qt/entrance.h"

namespace ui::qt {

class LabelArea final : public QWidget {
public:
    LabelArea(const Entrance& door, Label& mirrored, QWidget* parent);

    const Label& Model() const { return label; }
    void Mirror();
    void Click();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const Entrance& entrance;
    Label& label;
    std::uint64_t mirroredChanges = 0;
};

}  // namespace ui::qt
