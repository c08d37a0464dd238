#include "ui/qt/keys.h"

#include "ui/input.h"

namespace ui::qt {

char32_t CharacterOf(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return key::Enter;
        case Qt::Key_Backspace: return key::Backspace;
        case Qt::Key_Escape: return key::Escape;
        case Qt::Key_Delete: return 0;
        default: break;
    }
    const auto characters = event.text().toUcs4();
    return characters.isEmpty() ? 0 : characters.front();
}

}  // namespace ui::qt
