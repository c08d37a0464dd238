#include "core/text_store.h"

#include "ui/errors.h"

TextStore TextStore::Decode(std::span<const std::uint8_t> packed) {
    WordReader reader(packed, "Soubor s texty hry (data/texs.dat) je poškozený. Nainstaluj prosím hru znovu.");
    const std::int16_t count = reader.Take();
    if (count < LastText) reader.Refuse();

    TextStore store;
    store.texts.reserve(static_cast<std::size_t>(count));
    for (int number = 1; number <= count; ++number) {
        const std::int16_t length = reader.Take();
        const std::int16_t key = reader.Take();
        if (length < 0) reader.Refuse();
        store.texts.push_back(reader.TakeText(static_cast<std::size_t>(length), key));
    }
    return store;
}

std::optional<std::string_view> TextStore::Text(TextNumber number) const {
    if (number < 1 || static_cast<std::size_t>(number) > texts.size()) return std::nullopt;
    return texts[static_cast<std::size_t>(number - 1)];
}

TextStore PrepareTextStore(const std::filesystem::path& appPath) {
    return TextStore::Decode(ReadFile(appPath / "data" / "texs.dat",
                                      "Soubor s texty hry (data/texs.dat) chybí nebo se nedá přečíst. Nainstaluj prosím hru znovu."));
}
