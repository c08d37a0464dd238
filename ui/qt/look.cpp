#include "ui/qt/look.h"

#include <QFontInfo>
#include <QStringList>

namespace ui::qt {

bool HasFontFamily(std::string_view name) {
    const QString wanted = ToQt(name);
    // A family that several foundries offer is called "Family [Foundry]".
    const QString given = QFontInfo(QFont(wanted)).family().section(" [", 0, 0);
    return given == wanted || QFont::substitutes(wanted).contains(given, Qt::CaseInsensitive);
}

QRect Pixels(const Rect& twips) {
    return {twips.Left / TwipsPerPixel, twips.Top / TwipsPerPixel, twips.Width / TwipsPerPixel, twips.Height / TwipsPerPixel};
}

QColor ToQt(Colour colour) {
    return {colour.Red, colour.Green, colour.Blue};
}

QFont ToQt(const Font& font) {
    QFont result("Arial");
    result.setPixelSize(static_cast<int>(font.Points * 96 / 72));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    return result;
}

QPalette PaletteOf(const ControlLayout& layout) {
    QPalette palette;
    const QColor text = ToQt(layout.Text);
    for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) palette.setColor(role, text);
    palette.setColor(QPalette::WindowText, BorderColour);
    palette.setColor(QPalette::Base, ToQt(layout.Background.value_or(Black)));
    palette.setColor(QPalette::Window, QColor(24, 32, 36));
    palette.setColor(QPalette::Button, QColor(52, 66, 72));
    palette.setColor(QPalette::Highlight, ToQt(Teal));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QString ToQt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string FromQt(const QString& text) {
    return text.normalized(QString::NormalizationForm_C).toStdString();
}

}  // namespace ui::qt
