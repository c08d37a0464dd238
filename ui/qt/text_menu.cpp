#include "ui/qt/text_menu.h"

#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

namespace ui::qt {

namespace {

QMenu* NewMenu(QWidget* owner) {
    auto* menu = new QMenu(owner);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setPalette(QPalette());
    return menu;
}

}  // namespace

void PopUpTextMenu(QLineEdit& line, const QPoint& screenPosition) {
    QMenu* menu = NewMenu(&line);
    if (!line.isReadOnly()) menu->addAction("Vyjmout", &line, &QLineEdit::cut)->setEnabled(line.hasSelectedText());
    menu->addAction("Kopírovat", &line, &QLineEdit::copy)->setEnabled(line.hasSelectedText());
    if (!line.isReadOnly()) menu->addAction("Vložit", &line, &QLineEdit::paste);
    menu->addAction("Vybrat vše", &line, &QLineEdit::selectAll)->setEnabled(!line.text().isEmpty());
    menu->popup(screenPosition);
}

void PopUpTextMenu(QPlainTextEdit& view, const QPoint& screenPosition) {
    QMenu* menu = NewMenu(&view);
    menu->addAction("Kopírovat", &view, &QPlainTextEdit::copy)->setEnabled(view.textCursor().hasSelection());
    menu->addAction("Vybrat vše", &view, &QPlainTextEdit::selectAll)->setEnabled(!view.document()->isEmpty());
    menu->popup(screenPosition);
}

}  // namespace ui::qt
