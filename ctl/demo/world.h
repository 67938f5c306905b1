#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "ctl/demo/players.h"

namespace kalco::demo {

/// A team with players of its own.
struct Squad {
    int strength = 0;  ///< 0 to 4.
    int module = 0;    ///< Its row in the catalogue of modules.
    std::array<int, roster_players> numbers{};
    std::array<Player, roster_players> players;
};

/// All invented players: what the tables of the disc are filled from.
struct World {
    std::array<Squad, roster_team_count> squads;  ///< By team: nations, all-star teams, classic teams.
    std::vector<Player> pool;                     ///< The players outside all rosters, by row.
};

World make_world(std::uint64_t seed);

/// The module of the default Master League team; its players stand in the pool.
inline constexpr int default_team_module = 3;

}  // namespace kalco::demo
