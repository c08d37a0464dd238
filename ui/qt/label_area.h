// A label: a centred caption, or a transparent area that takes clicks. Tab leads to such an area, and Space and Enter click it, although
// the program's own focus never goes there.
#pragma once

#include <QWidget>

#include "ui/qt/event_sink.h"

namespace ui::qt {

class LabelArea final : public QWidget {
public:
    LabelArea(const EventSink& sink, Label& mirrored, QWidget* parent);

    const Label& Model() const { return label; }
    void Mirror();
    void Click();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    const EventSink& events;
    Label& label;
    std::uint64_t mirroredChanges = 0;
};

}  // namespace ui::qt
