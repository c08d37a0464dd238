// The background picture of a window, decoded in another thread while the window opens.
#pragma once

#include <QImage>
#include <QPixmap>
#include <filesystem>
#include <future>

namespace ui::qt {

class Picture {
public:
    // Starts reading the file in a size given in device-independent pixels, each of which the screen shows as `density` by `density` of its
    // own; false when there is nothing new to read.
    bool Load(const std::filesystem::path& file, const QSize& size, qreal density);

    // A file that is missing or no picture gives an empty one, and a line on standard error.
    const QPixmap& Loaded();

private:
    std::filesystem::path path;
    qreal loadedDensity = 0;
    std::future<QImage> reading;
    QPixmap loaded;
};

}  // namespace ui::qt
