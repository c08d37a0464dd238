#include "ui/qt/keys.h"

#include "ui/input.h"

namespace ui::qt {

namespace {

constexpr char32_t Delete = 0x7F;  // the text of the Delete key

}  // namespace

bool IsShortcut(const QKeyEvent& event) {
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}

char32_t CharacterOf(const QKeyEvent& event) {
    if (IsShortcut(event)) return 0;  // because the text of Ctrl+[ is Escape, and that of Ctrl+M is Enter
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return key::Enter;
        case Qt::Key_Backspace: return key::Backspace;
        case Qt::Key_Escape: return key::Escape;
        default: break;
    }
    const auto characters = event.text().toUcs4();
    const bool printable = !characters.isEmpty() && characters.front() >= U' ' && characters.front() != Delete;
    return printable ? characters.front() : 0;
}

}  // namespace ui::qt
