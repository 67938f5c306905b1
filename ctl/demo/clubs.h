#pragma once

#include <string_view>

#include "ctl/demo/world.h"

namespace kalco::demo {

/// The first byte of a player's code.
int nation_of_code(std::string_view code);

/// Links the clubs to players of the rosters and of the pool, and a few of them to a whole team. No player plays for
/// two clubs but those of the linked teams.
void make_clubs(World& world, Random& random);

}  // namespace kalco::demo
