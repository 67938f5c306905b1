#include "ctl/demo/world.h"

#include <algorithm>

#include "ctl/demo/clubs.h"
#include "ctl/demo/line_ups.h"
#include "disc/formation.h"
#include "disc/player_codes.h"

namespace kalco::demo {
namespace {

constexpr int european_stars = nation_count;
constexpr int world_stars = nation_count + 1;
constexpr int first_classic = nation_count + 2;
constexpr int last_european_nation = 29;
/// The nations whose classic teams follow the all-star teams.
constexpr std::array<int, 7> classic_nations{3, 6, 8, 10, 12, 41, 46};
static_assert(first_classic + static_cast<int>(classic_nations.size()) == roster_team_count);

constexpr int top_strength = 4;
/// A record holds no higher number than this, and neither does a nation's table.
constexpr int highest_number = 32;
constexpr auto default_team_module = "4-4-2B";

/// Strength, module and numbers; the players are still to come.
Squad make_squad(int strength, Random& random) {
    Squad squad;
    squad.strength = strength;
    squad.module = &random.one_of(module_rows);
    squad.numbers = make_numbers(highest_number, random);
    return squad;
}

Squad make_team(Sound sound, int strength, Random& random) {
    Squad squad = make_squad(strength, random);
    const Roles roles = squad_roles(line_up(*squad.module), random);
    for (std::size_t k = 0; k < roles.size(); ++k) {
        squad.players[k] = make_player(sound, strength, roles[k], squad.numbers[k], random);
    }
    return squad;
}

/// Players of the nations first to last, each in the role that he has there.
Squad make_stars(const World& world, int first, int last, Random& random) {
    Squad squad = make_squad(top_strength, random);
    const Roles roles = squad_roles(line_up(*squad.module), random);
    std::vector<const Player*> chosen;
    for (std::size_t k = 0; k < roles.size(); ++k) {
        const Player* player = nullptr;
        do {
            const Squad& nation = world.squads[static_cast<std::size_t>(random.between(first, last))];
            player = &random.one_of(nation.players);
        } while (player->values.role != static_cast<std::int64_t>(roles[k]) ||
                 std::find(chosen.begin(), chosen.end(), player) != chosen.end());
        chosen.push_back(player);
        squad.players[k] = *player;
        squad.players[k].values.number = squad.numbers[k];
    }
    return squad;
}

/// Fills the pool, and the default team with its players of it.
void make_pool(World& world, Random& random) {
    Squad& team = world.default_team;
    team.module = module_named(default_team_module);
    team.numbers = make_numbers(highest_number, random);
    const Roles roles = squad_roles(line_up(*team.module), random);
    for (const PoolRow row : every<PoolRow>()) {
        const auto* const slot = std::find(DefaultSlots.begin(), DefaultSlots.end(), row);
        const bool in_team = slot != DefaultSlots.end();
        const auto place = static_cast<std::size_t>(slot - DefaultSlots.begin());
        const Role role = in_team ? roles[place] : static_cast<Role>(random.below(static_cast<int>(role_texts.size())));
        const int number = in_team ? team.numbers[place] : random.between(1, highest_number);
        const int strength = in_team ? team.strength : random.between(0, top_strength);
        world.pool.push_back(make_player(sound_of_country(code_of(row)->team), strength, role, number, random));
        if (in_team) team.players[place] = world.pool.back();
    }
}

}  // namespace

World make_world(std::uint64_t seed) {
    World world;
    for (int team = 0; team < nation_count; ++team) {
        Random random(seed, "nation " + std::to_string(team));
        const int strength = random.between(0, top_strength);
        world.squads[static_cast<std::size_t>(team)] = make_team(sound_of_country(team), strength, random);
    }
    Random stars(seed, "all-star teams");
    world.squads[european_stars] = make_stars(world, 0, last_european_nation, stars);
    world.squads[world_stars] = make_stars(world, last_european_nation + 1, nation_count - 1, stars);
    for (std::size_t k = 0; k < classic_nations.size(); ++k) {
        Random random(seed, "classic team " + std::to_string(k));
        world.squads[first_classic + k] = make_team(sound_of_country(classic_nations[k]), top_strength, random);
    }
    Random pool(seed, "pool");
    make_pool(world, pool);
    Random clubs(seed, "clubs");
    make_clubs(world, clubs);
    return world;
}

}  // namespace kalco::demo
