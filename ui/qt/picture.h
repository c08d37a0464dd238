// The background pictures.
#pragma once

#include <QImage>
#include <QPixmap>
#include <filesystem>

namespace ui::qt {

// A file that is missing or no picture gives an empty image, and a line on standard error.
QImage LoadPicture(const std::filesystem::path& path);

// The size is in device-independent pixels, of which the screen shows each as `density` by `density` of its own.
QPixmap ScaledTo(const QImage& picture, const QSize& size, qreal density);

}  // namespace ui::qt
