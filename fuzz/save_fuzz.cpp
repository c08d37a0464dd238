// Any bytes as a saved game: they are refused, belong to another name, or hold a game that is the same after being saved and loaded again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "saves/save_format.h"
#include "ui/errors.h"

namespace {

constexpr std::string_view Name = "hra";
constexpr SaveKeys Keys{.Name = 7, .DoorCode = 93};

GameState StartState() {
    GameState state;
    BuildSectors(state.Sectors);
    return state;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const GameState start = StartState();
    try {
        const auto loaded = DecodeSave(std::span(data, size), Name, start);
        if (!loaded) return 0;
        const Bytes saved = EncodeSave(*loaded, Name, Keys);
        const auto again = DecodeSave(saved, Name, start);
        if (!again || EncodeSave(*again, Name, Keys) != saved) std::abort();
    } catch (const ui::GameError&) {
    }
    return 0;
}
