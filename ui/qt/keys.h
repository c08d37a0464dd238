// Qt's keys as the characters that the models know.
#pragma once

#include <QKeyEvent>

namespace ui::qt {

// The character that the key types (Backspace, Enter and Escape are characters too); 0 for keys that only move about.
char32_t CharacterOf(const QKeyEvent& event);

}  // namespace ui::qt
