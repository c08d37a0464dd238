#include "core/words.h"

#include <array>
#include <fstream>

#include "text/characters.h"
#include "text/windows1250.h"
#include "ui/errors.h"

Bytes ReadWholeFile(const std::filesystem::path& path, const std::string& unreadable, std::size_t enough) {
    std::error_code error;
    std::ifstream file;
    // Opening a folder succeeds on some systems, and only reading it fails.
    if (std::filesystem::is_regular_file(path, error)) file.open(path, std::ios::binary);
    if (!file.is_open()) throw ui::GameError(unreadable);
    Bytes bytes;
    std::array<char, 1 << 16> piece;
    while (file && bytes.size() < enough) {
        file.read(piece.data(), piece.size());
        bytes.insert(bytes.end(), piece.begin(), piece.begin() + file.gcount());
    }
    if (file.bad()) throw ui::GameError(unreadable);
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
            text.push_back(static_cast<char>(code));  // most are, and every start decodes all the texts
        } else {
            text::AppendCharacter(text, text::FromWindows1250(static_cast<std::uint8_t>(code)));
        }
    }
    return text;
}

void WordReader::Refuse() const {
    throw ui::GameError(sentence);
}
