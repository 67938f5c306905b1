#pragma once

#include <array>
#include <string_view>

#include "disc/player_facts.h"

namespace kalco::app {

/// As on the pitch, by the order of role_texts.
inline constexpr std::array<std::string_view, role_texts.size()> short_roles{"P",  "DC", "TER", "CC",
                                                                             "CL", "CO", "CA",  "AL"};

}  // namespace kalco::app
