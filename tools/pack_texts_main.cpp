// pack_texts SOURCE TARGET [--one-key]: packs the story; ends with 1 and the reason on standard error, the target untouched, when it
// cannot.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

#include "tools/pack_texts.h"

namespace {

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw tools::PackingError(path.string() + ": cannot be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteWords(const std::filesystem::path& path, const std::vector<std::uint16_t>& words) {
    std::ofstream file(path, std::ios::binary);
    for (const std::uint16_t word : words) file.put(static_cast<char>(word & 0xFF)).put(static_cast<char>(word >> 8));
    if (!file.flush()) throw tools::PackingError(path.string() + ": cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
    const bool oneKey = argc == 4 && std::string_view(argv[3]) == "--one-key";
    if (argc != 3 && !oneKey) {
        std::cerr << "usage: pack_texts SOURCE TARGET [--one-key]\n";
        return 1;
    }
    try {
        WriteWords(argv[2], tools::PackTexts(ReadFile(argv[1]), argv[1], oneKey ? tools::Keys::Shared : tools::Keys::Own));
    } catch (const tools::PackingError& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
