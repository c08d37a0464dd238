// Puts every file of a folder through the fuzz target that it is linked with; a fault ends it as it would end the fuzzer.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <iostream>

#include "core/game_files.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int, char** arguments) {
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
        std::cerr << entry.path() << '\n';
        const Bytes bytes = ReadFile(entry.path(), "unreadable");
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
        ++files;
    }
    return files > 0 ? 0 : 1;
}
