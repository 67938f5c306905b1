#include "ctl/demo/world.h"

#include <algorithm>
#include <string>

#include "ctl/demo/line_ups.h"

namespace kalco::demo {
namespace {

constexpr int european_stars = nation_count;
constexpr int world_stars = nation_count + 1;
constexpr int first_classic = nation_count + 2;
constexpr int last_european_nation = 29;
/// The nations whose classic teams follow the all-star teams.
constexpr std::array<int, 7> classic_nations{3, 6, 8, 10, 12, 41, 46};
static_assert(first_classic + static_cast<int>(classic_nations.size()) == roster_team_count);

/// Strength, module and numbers; the players are still to come.
Squad make_squad(int strength, Random& random) {
    Squad squad;
    squad.strength = strength;
    squad.module = random.below(line_up_count);
    squad.numbers = make_numbers(random);
    return squad;
}

Squad make_team(Sound sound, int strength, Random& random) {
    Squad squad = make_squad(strength, random);
    const Roles roles = squad_roles(line_up(squad.module), random);
    for (std::size_t k = 0; k < roles.size(); ++k) {
        squad.players[k] = make_player(sound, roles[k], strength, squad.numbers[k], random);
    }
    return squad;
}

/// Players of the nations first to last, each in a role that his nation's coach gave him.
Squad make_stars(const World& world, int first, int last, Random& random) {
    Squad squad = make_squad(4, random);
    const Roles roles = squad_roles(line_up(squad.module), random);
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

std::vector<Player> make_pool(Random& random) {
    const Roles roles = squad_roles(line_up(default_team_module), random);
    std::vector<Player> pool;
    for (int row = 0; row < pool_players; ++row) {
        const auto slot = std::find(DefaultSlots.begin(), DefaultSlots.end(), row);
        const bool in_default_team = slot != DefaultSlots.end();
        const auto place = static_cast<std::size_t>(slot - DefaultSlots.begin());
        const Role role = in_default_team ? roles[place] : static_cast<Role>(random.below(8));
        const int number = in_default_team ? static_cast<int>(place) + 1 : random.between(1, 32);
        const Sound sound = sound_of_nation(row * nation_count / pool_players);
        pool.push_back(make_player(sound, role, in_default_team ? 0 : random.between(0, 4), number, random));
    }
    return pool;
}

}  // namespace

World make_world(std::uint64_t seed) {
    World world;
    for (int team = 0; team < nation_count; ++team) {
        Random random(seed, "nation " + std::to_string(team));
        world.squads[static_cast<std::size_t>(team)] = make_team(sound_of_nation(team), random.between(0, 4), random);
    }
    Random stars(seed, "all-star teams");
    world.squads[european_stars] = make_stars(world, 0, last_european_nation, stars);
    world.squads[world_stars] = make_stars(world, last_european_nation + 1, nation_count - 1, stars);
    for (std::size_t k = 0; k < classic_nations.size(); ++k) {
        Random random(seed, "classic team " + std::to_string(k));
        world.squads[first_classic + k] = make_team(sound_of_nation(classic_nations[k]), 4, random);
    }
    Random pool(seed, "pool");
    world.pool = make_pool(pool);
    return world;
}

}  // namespace kalco::demo
