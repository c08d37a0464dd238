#include "interactions/receptacles.h"

namespace {

constexpr auto All = std::to_array<Receptacle>({
    {Item::CabinWardrobe, &GameState::CabinWardrobeOpen},
    {Item::BathroomCupboard, &GameState::CupboardOpen, "Otevřel jsi skříňku...", "Zavřel jsi skříňku...", "Skříňka je již otevřená!",
     "Skříňka je již zavřená!"},
    {Item::Briefcase, &GameState::BriefcaseOpen, "Otevřel jsi kufřík...", "Zavřel jsi kufřík...", "Kufřík je již otevřený!",
     "Kufřík je již zavřený!"},
    {Item::InnerRoomWardrobe, &GameState::InnerRoomWardrobeOpen},
    {Item::OfficeWardrobe, &GameState::OfficeWardrobeOpen},
    {Item::CaptainWardrobe, &GameState::CaptainWardrobeOpen},
});

}  // namespace

std::span<const Receptacle> Receptacles() {
    return All;
}
