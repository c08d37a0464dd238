#include "ui/qt/picture.h"

#include <QImageReader>
#include <iostream>

namespace ui::qt {

namespace {

QImage Read(const std::filesystem::path& path, const QSize& size, qreal density) {
    // The files are named without an extension. Not to name the format would have Qt load all the formats that it knows.
    QImage image = QImageReader(QString::fromStdString(path.string()), "png").read();
    if (image.isNull()) return image;
    image = image.scaled((QSizeF(size) * density).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(density);
    return image;
}

}  // namespace

bool Picture::Load(const std::filesystem::path& file, const QSize& size, qreal density) {
    if (file == path && density == loadedDensity) return false;
    path = file;
    loadedDensity = density;
    reading = std::async(std::launch::async, Read, path, size, density);
    return true;
}

const QPixmap& Picture::Loaded() {
    if (reading.valid()) {
        loaded = QPixmap::fromImage(reading.get());
        if (loaded.isNull()) std::cerr << "Obrázek " << path.string() << " chybí nebo je poškozený.\n";
    }
    return loaded;
}

}  // namespace ui::qt
