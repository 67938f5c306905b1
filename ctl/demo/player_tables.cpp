#include "ctl/demo/tables.h"

namespace kalco::demo {
namespace {

void put_cost(DemoDisc& disc, int team, int player, int cost) {
    disc.put(user_offset_of(cost_position(team, player)), std::string(1, static_cast<char>(cost)));
}

}  // namespace

void put_rosters(DemoDisc& disc, const World& world, Random& random) {
    for (int team = 0; team < roster_team_count; ++team) {
        const Squad& squad = world.squads[static_cast<std::size_t>(team)];
        for (int player = 0; player < roster_players; ++player) {
            const Player& data = squad.players[static_cast<std::size_t>(player)];
            disc.put(roster_name_field(team, player), data.name);
            disc.put(roster_record_field(team, player), data.record());
            if (has_cost(team)) put_cost(disc, team, player, data.cost());
        }
    }
    // The slot that the shifted team leaves out belongs to no player, but a record stands there as well.
    disc.put(user_offset_of(roster_record_field(shifted_team, first_shifted_player - 1).position()) +
                 player_record_bytes,
             make_player(sound_of_country(shifted_team), Role::midfielder, 2, 24, random).record());
}

void put_pool(DemoDisc& disc, const World& world) {
    for (int row = 0; row < pool_players; ++row) {
        const Player& data = world.pool[static_cast<std::size_t>(row)];
        disc.put(pool_name_field(row), data.name);
        disc.put(pool_record_field(row), data.record());
        put_cost(disc, default_list_team, row, data.cost());
    }
}

}  // namespace kalco::demo
