#pragma once

#include <array>

#include "ctl/demo/players.h"
#include "disc/formation_facts.h"

namespace kalco::demo {

/// The roles of the ten field players of a module of the catalogue.
std::array<Role, outfield_players> line_up(const ModuleRow& module);

}  // namespace kalco::demo
