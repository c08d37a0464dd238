// A box of one line. Qt does the editing; the model hears of every key first and of every edit after it.
#pragma once

#include <QBasicTimer>
#include <QLineEdit>
#include <optional>

#include "ui/qt/event_sink.h"

namespace ui::qt {

class InputLine final : public QLineEdit {
public:
    InputLine(const EventSink& sink, TextBox& mirrored, QWidget* parent);

    void Mirror();

    // Where the caret stands, blinking or not.
    QRect CaretRect() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool Announce(char32_t character);  // true: swallowed
    void PassShortcut(QKeyEvent& event);
    void Report();
    void StartBlinking();

    const EventSink& events;
    TextBox& box;
    std::optional<std::uint64_t> mirroredChanges;
    QBasicTimer blinking;
    bool caretLit = false;
};

}  // namespace ui::qt
