// The verbs by their place in the verb list, which is the value of CommandVerb.
#pragma once

#include <cstdint>

namespace verb {
enum : std::int16_t { Go, Examine, Use, Take, Put, Open, Close, Talk, Clear, Load, Save, Version, Exit };
}

// In CommandVerb, CommandObject and CommandTarget: nothing has been chosen.
constexpr std::int16_t NotChosen = -1;
