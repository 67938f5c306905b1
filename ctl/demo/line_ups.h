#pragma once

#include <array>
#include <string_view>

#include "ctl/demo/players.h"

namespace kalco::demo {

inline constexpr int line_up_count = 16;

/// The roles of the ten field players of a module of the catalogue.
std::array<Role, 10> line_up(int module);

}  // namespace kalco::demo
