#include "core/game_files.h"

#include <array>
#include <cstdio>
#include <memory>

#include "text/characters.h"
#include "text/windows1250.h"
#include "ui/errors.h"

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

// Through C's files, because a stream of C++ would bring the library's locales into the page's program, a third of its size.
Bytes ReadFile(const std::filesystem::path& path, const std::string& unreadable, std::size_t enough) {
    std::error_code error;
    std::unique_ptr<std::FILE, CloseFile> file;
    // Folders are left out first, because opening one succeeds on some systems, and only reading it fails.
    if (std::filesystem::is_regular_file(path, error)) file.reset(std::fopen(path.c_str(), "rb"));
    if (!file) throw ui::GameError(unreadable);
    Bytes bytes;
    std::array<std::uint8_t, 1 << 16> piece;
    while (bytes.size() < enough && !std::feof(file.get()) && !std::ferror(file.get())) {
        const std::size_t count = std::fread(piece.data(), 1, piece.size(), file.get());
        bytes.insert(bytes.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(count));
    }
    if (std::ferror(file.get()) != 0) throw ui::GameError(unreadable);
    return bytes;
}

std::int16_t WordReader::Take() {
    if (rest.size() < 2) Refuse();
    const int word = rest[0] | rest[1] << 8;
    rest = rest.subspan(2);
    return static_cast<std::int16_t>(word);
}

std::size_t WordReader::TakeLength() {
    const std::int16_t length = Take();
    if (length < 0 || static_cast<std::size_t>(length) > rest.size() / 2) Refuse();
    return static_cast<std::size_t>(length);
}

std::string WordReader::TakeText(std::size_t length, std::int16_t key) {
    std::string text;
    for (std::size_t i = 0; i < length; ++i) {
        const auto code = static_cast<std::int16_t>(Take() - key);
        if (code < 0 || code > 255) Refuse();
        if (code < 0x80) {
            text.push_back(
                static_cast<char>(code));  // a short cut, because most characters are ASCII and every start decodes all the texts
        } else {
            text::AppendCharacter(text, text::FromWindows1250(static_cast<std::uint8_t>(code)));
        }
    }
    return text;
}

void WordReader::Refuse() const {
    throw ui::GameError(sentence);
}
