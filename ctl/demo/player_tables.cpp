#include "ctl/demo/tables.h"
#include "disc/players.h"

namespace kalco::demo {
namespace {

void put_player(DemoDisc& disc, const PlayerPlace& place, const Player& player) {
    disc.put(player_name_field(place), player.name);
    disc.put(player_record_field(place), player.record());
    if (const auto cost = cost_position(place)) {
        disc.put(user_offset_of(*cost), std::string(1, static_cast<char>(player.cost())));
    }
}

}  // namespace

void put_rosters(DemoDisc& disc, const World& world, Random& random) {
    for (Team team(0); has_roster(team); ++team) {
        const Squad& squad = world.squads[team.place()];
        for (int player = 0; player < roster_players; ++player) {
            put_player(disc, RosterPlace{team, player}, squad.players[static_cast<std::size_t>(player)]);
        }
    }
    // The slot that the shifted team leaves out belongs to no player, but a record stands there as well.
    disc.put(user_offset_of(roster_record_field({shifted_team, first_shifted_player - 1}).position()) +
                 player_record_bytes,
             make_player(sound_of_country(shifted_team.value()), 2, Role::midfielder, 24, random).record());
}

void put_pool(DemoDisc& disc, const World& world) {
    for (const PoolRow row : every<PoolRow>()) put_player(disc, row, world.pool[row.place()]);
}

}  // namespace kalco::demo
