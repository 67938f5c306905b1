#pragma once

#include "ctl/demo/world.h"

namespace kalco::demo {

/// Links the clubs to players of the rosters and of the pool, and a few of them to a whole team. No player plays for
/// two clubs but those of the linked teams.
void make_clubs(World& world, Random& random);

}  // namespace kalco::demo
