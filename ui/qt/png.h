// Reads a PNG file. Qt could too, but would first look through all the image formats that are installed, which takes longer than to read
// it.
#pragma once

#include <QImage>
#include <filesystem>

namespace ui::qt {

// Null when the file is missing or damaged. May run in any thread.
QImage ReadPng(const std::filesystem::path& path);

}  // namespace ui::qt
