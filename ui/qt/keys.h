// Qt's keys as the characters that the models know.
#pragma once

#include <QKeyEvent>

namespace ui::qt {

// Whether the key comes with Ctrl, Alt or Meta. AltGr is none of them: it types the third character of a key.
bool IsShortcut(const QKeyEvent& event);

// The character that the key types (Backspace, Enter and Escape are characters too); 0 for shortcuts and for keys that only move about.
char32_t CharacterOf(const QKeyEvent& event);

}  // namespace ui::qt
