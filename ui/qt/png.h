// Reads a PNG file. Not by Qt, because Qt would first look through all installed image formats, which takes longer than the reading.
#pragma once

#include <QImage>
#include <filesystem>

namespace ui::qt {

// Null when the file is missing or damaged. May run in any thread.
QImage ReadPng(const std::filesystem::path& path);

}  // namespace ui::qt
