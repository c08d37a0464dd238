#include "ui/qt/png.h"

#include <png.h>

namespace ui::qt {

QImage ReadPng(const std::filesystem::path& path) {
    png_image file{};
    file.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&file, path.c_str()) == 0) return {};
    const bool palette = (file.format & PNG_FORMAT_FLAG_COLORMAP) != 0;
    file.format = palette ? PNG_FORMAT_BGRA_COLORMAP : PNG_FORMAT_BGRA;  // in the byte order of QRgb
    QImage image(static_cast<int>(file.width), static_cast<int>(file.height), palette ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
    QList<QRgb> colours(palette ? 256 : 0);
    const bool readable = !image.isNull() && png_image_finish_read(&file, nullptr, image.bits(),
                                                                   static_cast<png_int_32>(image.bytesPerLine()), colours.data()) != 0;
    png_image_free(&file);
    if (palette) image.setColorTable(colours);
    return readable ? image : QImage();
}

}  // namespace ui::qt
