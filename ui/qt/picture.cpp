#include "ui/qt/picture.h"

#include <iostream>

#include "ui/qt/png.h"

namespace ui::qt {

namespace {

QRgb Mean(QRgb a, QRgb b, QRgb c, QRgb d) {
    constexpr QRgb High = 0xFCFCFCFC, Low = 0x03030303;  // of each channel the upper six bits and the lower two
    const QRgb quarters = ((a & High) >> 2) + ((b & High) >> 2) + ((c & High) >> 2) + ((d & High) >> 2);
    return quarters + (((a & Low) + (b & Low) + (c & Low) + (d & Low)) >> 2 & Low);
}

// Not by Qt, which would first turn the palette's indexes into colours: touching that much memory is what takes longest.
QImage HalfSize(const QImage& image) {
    const QList<QRgb> colours = image.colorTable();
    QImage half(image.size() / 2, QImage::Format_RGB32);
    for (int y = 0; y < half.height(); ++y) {
        const uchar* upper = image.constScanLine(2 * y);
        const uchar* lower = image.constScanLine(2 * y + 1);
        auto* const line = reinterpret_cast<QRgb*>(half.scanLine(y));
        for (int x = 0; x < half.width(); ++x, upper += 2, lower += 2) {
            line[x] = Mean(colours[upper[0]], colours[upper[1]], colours[lower[0]], colours[lower[1]]);
        }
    }
    return half;
}

QImage Fit(const QImage& image, const QSize& size) {
    if (image.size() == size) return image;
    if (image.format() == QImage::Format_Indexed8 && image.size() == 2 * size) return HalfSize(image);
    return image.convertToFormat(QImage::Format_RGB32).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage Read(const std::filesystem::path& path, const QSize& size, qreal density) {
    QImage image = ReadPng(path);
    if (image.isNull()) return image;
    image = Fit(image, (QSizeF(size) * density).toSize());
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
