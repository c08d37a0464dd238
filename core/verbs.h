// The verbs by their place in the verb list, which is the value of CommandVerb.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace verb {

enum : std::int16_t { Go, Examine, Use, Take, Put, Open, Close, Talk, LastObjectVerb = Talk, Clear, Load, Save, Version, Exit };

constexpr auto Names = std::to_array<std::string_view>({"Jdi", "Prozkoumej", "Použij", "Vezmi", "Polož", "Otevři", "Zavři", "Oslov",
                                                        "Vymaž", "Nahraj pozici", "Ulož pozici", "Verze", "Exit"});
static_assert(Names.size() == Exit + 1);

}  // namespace verb

// In CommandVerb, CommandObject and CommandTarget: nothing has been chosen.
constexpr std::int16_t NotChosen = -1;
