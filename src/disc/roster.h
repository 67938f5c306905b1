#pragma once

#include <array>
#include <string>

#include "disc/image/image.h"
#include "disc/image/position.h"
#include "disc/player_record.h"
#include "disc/teams.h"

/// Where the players lie: the rosters of the 63 teams with players of their own, and the pool of those outside all
/// rosters. Two tables each, names and records, that run on over sector ends.
namespace kalco {

inline constexpr int roster_players = 23;
inline constexpr int player_name_bytes = 10;
/// Players outside all rosters; the list of the Master League's default players shows them all.
inline constexpr int pool_players = 462;

inline constexpr UserOffset RosterNameBase = 337912;
inline constexpr UserOffset RosterRecordBase = 1897964;
inline constexpr UserOffset DefaultNameBase = 1746952;
inline constexpr UserOffset DefaultRecordBase = 1919240;

/// From its 14th player on, this team's records are shifted by one slot into the next sector, so that its last player
/// is the same record as the first one of the next team.
inline constexpr int shifted_team = 31;
inline constexpr int first_shifted_player = 13;

/// The name of player 0..22 of team 0..62.
constexpr Pieces roster_name_field(int team, int player) {
    return field_at(RosterNameBase + player_name_bytes * (roster_players * team + player), player_name_bytes);
}

/// The record of player 0..22 of team 0..62. Player 23, the slot behind the last one, follows by the same rule.
constexpr Pieces roster_record_field(int team, int player) {
    const int shift = team == shifted_team && player >= first_shifted_player ? 1 : 0;
    return field_at(RosterRecordBase + player_record_bytes * (roster_players * team + player + shift),
                    player_record_bytes);
}

/// The name and the record of row 0..461 of the pool.
constexpr Pieces pool_name_field(int row) {
    return field_at(DefaultNameBase + player_name_bytes * row, player_name_bytes);
}
constexpr Pieces pool_record_field(int row) {
    return field_at(DefaultRecordBase + player_record_bytes * row, player_record_bytes);
}

/// The pool rows of the default Master League team, in roster order.
inline constexpr std::array<int, roster_players> DefaultSlots{348, 310, 320, 166, 324, 274, 98,  167, 57,  389, 99, 50,
                                                              299, 8,   303, 3,   9,   300, 433, 305, 209, 313, 312};

/// Number of players of a team of cboSeqSQ that has records in the image: 23, 462 for the default list, else 0.
constexpr int player_count(int team) {
    if (team >= 0 && team < roster_team_count) return roster_players;
    return team == default_list_team ? pool_players : 0;
}

/// The same fields by the row of cboSeqSQ: a roster place, or a pool row for the default list.
constexpr Pieces player_name_field(int team, int player) {
    return team == default_list_team ? pool_name_field(player) : roster_name_field(team, player);
}
constexpr Pieces player_record_field(int team, int player) {
    return team == default_list_team ? pool_record_field(player) : roster_record_field(team, player);
}

/// Costo ML: one byte a player, only for the nations and the default list.
constexpr bool has_cost(int team) {
    return is_nation(team) || team == default_list_team;
}
constexpr ImagePos cost_position(int team, int player) {
    return team == default_list_team ? 3069512 + (player + 1) : 3067381 + roster_players * (team + 1) + (player + 1);
}

/// A name as the lists show it: joined, trimmed of blanks, then cut at its first zero byte.
std::string read_player_name(const Image& image, const Pieces& field);

}  // namespace kalco
