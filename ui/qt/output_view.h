// A box of many lines that is only read. New text is appended without laying out again what stands before it.
#pragma once

#include <QPlainTextEdit>
#include <optional>

#include "ui/qt/event_sink.h"

namespace ui::qt {

class OutputView final : public QPlainTextEdit {
public:
    OutputView(const EventSink& sink, TextBox& mirrored, QWidget* parent);

    void Mirror();

    // Lines as they are displayed, wrapped ones counted each, also while the box is hidden.
    std::size_t CountLines();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void CopyText();
    void FollowCaret();

    const EventSink& events;
    TextBox& box;
    std::optional<std::uint64_t> mirroredChanges;
    std::uint64_t mirroredReplacements = 0;
    std::size_t mirroredBytes = 0;
    int countedBlocks = 0;  // paragraphs that no appended text can change any more
    std::size_t countedLines = 0;
};

}  // namespace ui::qt
