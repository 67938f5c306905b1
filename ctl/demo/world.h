#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "ctl/demo/players.h"
#include "disc/formation_facts.h"
#include "disc/links.h"

namespace kalco::demo {

/// A team as it plays.
struct Squad {
    int strength = 0;  ///< 0 to 4.
    const ModuleRow* module = nullptr;
    std::array<int, roster_players> numbers{};
    std::array<Player, roster_players> players;
};

/// A club plays with players who stand elsewhere.
struct LinkedSquad {
    Squad squad;
    Links links;
};

/// All that was invented: what the tables of the disc are filled from, so that they fit together.
struct World {
    std::array<Squad, roster_team_count> squads;  ///< By team: nations, all-star teams, classic teams.
    std::vector<Player> pool;                     ///< The players outside all rosters, by row.
    std::array<LinkedSquad, Club::count> clubs;
    Squad default_team;  ///< The default Master League team, whose players stand in the pool.
};

World make_world(std::uint64_t seed);

}  // namespace kalco::demo
