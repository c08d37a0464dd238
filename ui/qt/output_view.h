// A box of many lines that is only read. New text is set at its end, what stands before it is not laid out again.
#pragma once

#include <QPlainTextEdit>
#include <optional>

#include "ui/qt/entrance.h"

namespace ui::qt {

class OutputView final : public QPlainTextEdit {
public:
    OutputView(const Entrance& door, TextBox& mirrored, QWidget* parent);

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

    const Entrance& entrance;
    TextBox& box;
    std::optional<std::uint64_t> mirroredChanges;
    std::uint64_t mirroredReplacements = 0;
    std::size_t mirroredBytes = 0;
    int countedBlocks = 0;  // paragraphs that no appended text can change any more
    std::size_t countedLines = 0;
};

}  // namespace ui::qt
