// The context menus of the text boxes, in Czech.
#pragma once

class QLineEdit;
class QPlainTextEdit;
class QPoint;

namespace ui::qt {

void PopUpTextMenu(QLineEdit& line, const QPoint& screenPosition);
void PopUpTextMenu(QPlainTextEdit& view, const QPoint& screenPosition);

}  // namespace ui::qt
