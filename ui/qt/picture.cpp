#include "ui/qt/picture.h"

#include <QImageReader>
#include <iostream>

namespace ui::qt {

QImage LoadPicture(const std::filesystem::path& path) {
    if (path.empty()) return {};
    QImageReader reader(QString::fromStdString(path.string()));
    // The files are named without an extension, so that their content alone tells what they are.
    reader.setDecideFormatFromContent(true);
    QImage picture = reader.read();
    if (picture.isNull()) std::cerr << "Obrázek " << path.string() << " nelze načíst: " << reader.errorString().toStdString() << '\n';
    return picture;
}

QPixmap ScaledTo(const QImage& picture, const QSize& size, qreal density) {
    const QSize pixels = (QSizeF(size) * density).toSize();
    QPixmap scaled = QPixmap::fromImage(picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    scaled.setDevicePixelRatio(density);
    return scaled;
}

}  // namespace ui::qt
