// Any bytes as the packed texts: they are refused, or every text can be shown.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "core/text_store.h"
#include "text/windows1250.h"
#include "ui/errors.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const TextStore store = TextStore::Decode(std::span(data, size));
        for (TextNumber number = 1; number <= LastText; ++number) {
            const auto text = store.Text(number);
            if (!text || text::ReplaceForeignCharacters(*text) != *text) std::abort();
        }
    } catch (const ui::GameError&) {
    }
    return 0;
}
