#include "ui/qt/output_view.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

#include "ui/input.h"
#include "ui/qt/look.h"
#include "ui/qt/text_menu.h"

namespace ui::qt {

namespace {

constexpr int TextMargin = 3;

}  // namespace

OutputView::OutputView(const EventSink& sink, TextBox& mirrored, QWidget* parent) : QPlainTextEdit(parent), events(sink), box(mirrored) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setAcceptDrops(false);
    setUndoRedoEnabled(false);
    setFocusPolicy(Qt::NoFocus);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setPalette(PaletteOf(box.Layout));
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::WindowText);
    setAutoFillBackground(true);
    setFont(ToQt(box.Layout.Font));
    setAccessibleName(ToQt(box.Layout.Spoken));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    document()->setDocumentMargin(0);
    setViewportMargins(TextMargin, 0, 0, 0);
    setGeometry(Pixels(box.Layout.Bounds));
    // Qt would tell a hidden box of its width only when it is shown, but lines are counted while it is hidden.
    for (QWidget* widget : {static_cast<QWidget*>(this), viewport()}) {
        QResizeEvent resized(widget->size(), {});
        QCoreApplication::sendEvent(widget, &resized);
    }
}

void OutputView::Mirror() {
    if (mirroredChanges == box.Changes()) return;
    mirroredChanges = box.Changes();
    CopyText();
    setVisible(box.Visible());
    FollowCaret();
}

void OutputView::CopyText() {
    const bool replaced = mirroredReplacements != box.Replacements();
    const std::string_view added = std::string_view(box.Text()).substr(replaced ? 0 : mirroredBytes);
    mirroredReplacements = box.Replacements();
    mirroredBytes = box.Text().size();
    if (!replaced && added.empty()) return;
    const QString lines = ToQt(added).remove('\r');
    if (replaced) {
        countedBlocks = 0;
        countedLines = 0;
        setPlainText(lines);
    } else {
        QTextCursor end(document());
        end.movePosition(QTextCursor::End);
        end.insertText(lines);
    }
}

void OutputView::FollowCaret() {
    if (box.Caret() == box.Text().size()) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

std::size_t OutputView::CountLines() {
    CopyText();
    std::size_t lines = countedLines;
    for (QTextBlock block = document()->findBlockByNumber(countedBlocks); block.isValid(); block = block.next()) {
        document()->documentLayout()->blockBoundingRect(block);  // breaks the paragraph into lines unless that was done before
        lines += static_cast<std::size_t>(std::max(1, block.layout()->lineCount()));
        if (block.next().isValid()) {
            ++countedBlocks;
            countedLines = lines;
        }
    }
    return lines;
}

void OutputView::mousePressEvent(QMouseEvent* event) {
    events.Enter([this] { GiveFocus(events.Model, &box); });
    QPlainTextEdit::mousePressEvent(event);
}

void OutputView::contextMenuEvent(QContextMenuEvent* event) {
    PopUpTextMenu(*this, event->globalPos());
}

void OutputView::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    events.Enter([this] { GiveFocus(events.Model, &box); });
}

void OutputView::showEvent(QShowEvent* event) {
    QPlainTextEdit::showEvent(event);
    FollowCaret();
}

}  // namespace ui::qt
