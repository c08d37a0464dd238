// How the models' twips, points and colours come out in Qt: device-independent pixels, 96 to the inch.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>
#include <QString>
#include <string>
#include <string_view>

#include "ui/layouts.h"

namespace ui::qt {

constexpr int RowHeight = 16;  // of every list
constexpr QColor BorderColour(0, 96, 96);

// Whether text set in this family looks and measures as it should: as in the family itself or in one that the Application put in its place.
bool HasFontFamily(std::string_view name);

QRect Pixels(const Rect& twips);
QColor ToQt(Colour colour);
QFont ToQt(const Font& font);

// The control's colours, with scroll bars and selections to go with them.
QPalette PaletteOf(const ControlLayout& layout);

QString ToQt(std::string_view utf8);
// Composes what arrives as a letter and its accents, because Windows-1250 has only composed letters.
std::string FromQt(const QString& text);

}  // namespace ui::qt
