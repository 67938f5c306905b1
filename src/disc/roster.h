#pragma once

#include <array>

#include "disc/image/position.h"
#include "disc/indexes.h"
#include "disc/player_record.h"

/// Where the players lie: the rosters of the 63 teams with players of their own, and the pool of those outside all
/// rosters. Two tables each, names and records, that run on over sector ends.
namespace kalco {

inline constexpr int roster_players = 23;
inline constexpr int player_name_bytes = 10;

inline constexpr UserOffset RosterNameBase = 337912;
inline constexpr UserOffset RosterRecordBase = 1897964;
inline constexpr UserOffset DefaultNameBase = 1746952;
inline constexpr UserOffset DefaultRecordBase = 1919240;

/// From its 14th player on, this team's records are shifted by one slot into the next sector, so that its last player
/// is the same record as the first one of the next team.
inline constexpr Team shifted_team{31};
inline constexpr int first_shifted_player = 13;

/// Player 0..22 of a team with players of its own.
struct RosterPlace {
    Team team;
    int player = 0;

    friend constexpr bool operator==(const RosterPlace&, const RosterPlace&) = default;
};

constexpr Pieces roster_name_field(RosterPlace place) {
    return field_at(RosterNameBase + player_name_bytes * (roster_players * place.team.value() + place.player),
                    player_name_bytes);
}

/// Player 23, the slot behind the last one, follows by the same rule.
constexpr Pieces roster_record_field(RosterPlace place) {
    const int shift = place.team == shifted_team && place.player >= first_shifted_player ? 1 : 0;
    return field_at(RosterRecordBase +
                        player_record_bytes * (roster_players * place.team.value() + place.player + shift),
                    player_record_bytes);
}

constexpr Pieces pool_name_field(PoolRow row) {
    return field_at(DefaultNameBase + player_name_bytes * row.value(), player_name_bytes);
}
constexpr Pieces pool_record_field(PoolRow row) {
    return field_at(DefaultRecordBase + player_record_bytes * row.value(), player_record_bytes);
}

/// The pool rows of the default Master League team, in roster order.
inline constexpr std::array<PoolRow, roster_players> DefaultSlots{
    PoolRow(348), PoolRow(310), PoolRow(320), PoolRow(166), PoolRow(324), PoolRow(274), PoolRow(98),  PoolRow(167),
    PoolRow(57),  PoolRow(389), PoolRow(99),  PoolRow(50),  PoolRow(299), PoolRow(8),   PoolRow(303), PoolRow(3),
    PoolRow(9),   PoolRow(300), PoolRow(433), PoolRow(305), PoolRow(209), PoolRow(313), PoolRow(312)};

/// Number of players in a team's list on the first tab: its roster, the whole pool for the default list, else none.
constexpr int player_count(Team team) {
    if (has_roster(team)) return roster_players;
    return team == default_list ? PoolRow::count : 0;
}

/// Costo ML is there only for the nations and the pool.
constexpr bool has_cost(Team team) {
    return is_nation(team) || team == default_list;
}

}  // namespace kalco
