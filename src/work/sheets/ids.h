#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "disc/indexes.h"
#include "disc/players.h"

/// The rows' names: `t10` a team, `t10p03` a player of a roster (from 1 on), `m001` one of the pool, `c00` a club.
namespace kalco {

/// The rows of the players: the rosters, team by team, then the pool.
inline constexpr int roster_rows = roster_team_count * roster_players;
inline constexpr int player_rows = roster_rows + PoolRow::count;

PlayerPlace place_of_row(int row);
int row_of_place(const PlayerPlace& place);
/// The team of a roster; the default list for the pool.
Team team_of(const PlayerPlace& place);

std::string team_id(Team team);
std::string club_id(Club club);
std::string player_id(const PlayerPlace& place);

/// None for a text that is no id; ids are matched to the letter.
std::optional<Team> team_of_id(std::string_view id);
std::optional<Club> club_of_id(std::string_view id);
std::optional<PlayerPlace> player_of_id(std::string_view id);

}  // namespace kalco
