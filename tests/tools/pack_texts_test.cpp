#include "tools/pack_texts.h"

#include <gmock/gmock.h>

#include <string>

#include "core/text_store.h"
#include "tests/play.h"
#include "ui/errors.h"

namespace {

std::string Refusal(const std::string& source) {
    try {
        tools::PackTexts(source, "texts.txt");
    } catch (const tools::PackingError& error) {
        return error.what();
    }
    return "packed";
}

TextStore Decoded(const std::vector<std::uint16_t>& words, std::size_t bytes = SIZE_MAX) {
    Bytes file;
    for (const std::uint16_t word : words) {
        file.push_back(static_cast<std::uint8_t>(word & 0xFF));
        file.push_back(static_cast<std::uint8_t>(word >> 8));
    }
    file.resize(std::min(file.size(), bytes));
    return TextStore::Decode(file);
}

// Some text for the number: the first is empty, the others end with the last code of the code page.
std::string Text(int number) {
    return number == 1 ? "" : std::string(static_cast<std::size_t>(number % 3), '~') + "Žlutý kůň ˙";
}

std::vector<std::uint16_t> Packed(tools::Keys keys = tools::Keys::Own) {
    std::string source = "# for writers\n\n";
    for (int number = 1; number <= LastText; ++number) source += std::to_string(number) + ": " + Text(number) + "\n";
    return tools::PackTexts(source, "texts.txt", keys);
}

TEST(PackedTexts, ComeBackByTheirNumbersAndAreHiddenByKeysOfTheirOwn) {
    const auto words = Packed();
    const TextStore texts = Decoded(words);
    bool wrapped = false;
    std::set<std::uint16_t> keys;
    for (std::size_t position = 1; position < words.size(); position += 2u + words[position]) {
        keys.insert(words[position + 1]);
        for (std::size_t i = 0; i < words[position]; ++i) wrapped |= words[position + 2 + i] < words[position + 1];
    }
    EXPECT_TRUE(wrapped);  // a code plus its key exceeded 16 bits
    EXPECT_GT(keys.size(), 200);
    const TextStore behindOneKey = Decoded(Packed(tools::Keys::Shared));
    for (int number = 1; number <= LastText; ++number) {
        EXPECT_EQ(texts.Text(static_cast<TextNumber>(number)), Text(number));
        EXPECT_EQ(behindOneKey.Text(static_cast<TextNumber>(number)), Text(number));
    }
    for (const int number : {-1, 0, LastText + 1}) EXPECT_EQ(texts.Text(static_cast<TextNumber>(number)), std::nullopt);
}

TEST(PackedTexts, AreRefusedWhenTheFileIsDamagedOrMissing) {
    const auto words = Packed();
    for (const std::size_t bytes : {std::size_t{0}, std::size_t{1}, std::size_t{2}, words.size(), 2 * words.size() - 1}) {
        EXPECT_THROW(Decoded(words, bytes), ui::GameError) << bytes << " bytes";
    }
    const auto refuses = [&](std::size_t position, int value) {
        auto damaged = words;
        damaged[position] = static_cast<std::uint16_t>(value);
        EXPECT_THROW(Decoded(damaged), ui::GameError) << value << " at word " << position;
    };
    refuses(0, LastText - 1);  // too few texts
    refuses(0, LastText + 1);  // one more than there is
    refuses(3, -1);            // a length
    refuses(5, words[4] - 1);  // a character below 0
    refuses(5, words[4] + 256);
    const TemporaryFolder folder;
    EXPECT_THROW(PrepareTextStore(folder.Path), ui::GameError);
}

TEST(PackTexts, NamesTheLineThatTheFormatCannotHold) {
    const std::string expected = "expected \"NUMBER: TEXT\", a comment or an empty line";
    EXPECT_EQ(Refusal("1: Dobré\n\n2: Dobré ráno ☀\n"), "texts.txt:3: '☀' U+2600 is not in Windows-1250, at character 12 of the text");
    EXPECT_EQ(Refusal("1: \xC5\n"), "texts.txt:1: a byte that is not UTF-8 is not in Windows-1250, at character 1 of the text");
    EXPECT_EQ(Refusal("1: Dveře\njsou zavřené.\n"), "texts.txt:2: " + expected);
    EXPECT_EQ(Refusal("1 Dveře\n"), "texts.txt:1: " + expected);
    EXPECT_EQ(Refusal("99999999999999999999999: Dveře\n"), "texts.txt:1: " + expected);
    EXPECT_EQ(Refusal("1: Dveře\r\n"), "texts.txt:1: control character U+000D at character 6 of the text");
    EXPECT_EQ(Refusal("1: a\n3: c\n"), "texts.txt:2: text 3 stands where text 2 belongs");
    EXPECT_EQ(Refusal("1: " + std::string(32767, 'a')), "packed");
    EXPECT_EQ(Refusal("1: " + std::string(32768, 'a')), "texts.txt:1: the text has 32768 characters, at most 32767 fit");
    std::string source;
    for (int number = 1; number <= 32768; ++number) source += std::to_string(number) + ": a\n";
    EXPECT_EQ(Refusal(source), "texts.txt:32768: the file holds at most 32767 texts");
}

}  // namespace
