#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "disc/image/image.h"
#include "disc/image/position.h"
#include "disc/indexes.h"
#include "disc/roster.h"

/// A player by his place, wherever he stands: his name, his record and his cost.
namespace kalco {

/// In a roster or in the pool. Clubs have no places: they are linked to these.
using PlayerPlace = std::variant<RosterPlace, PoolRow>;

Pieces player_name_field(const PlayerPlace& place);
/// One record stands in two rosters: place 22 of the shifted team is place 0 of the next one.
Pieces player_record_field(const PlayerPlace& place);
/// Costo ML: one byte, only for players of nations and of the pool.
std::optional<ImagePos> cost_position(const PlayerPlace& place);

/// Row `player` of a team's list: the default list shows the whole pool.
PlayerPlace place_of(Team team, int player);
/// Player 0..22 of a row of the 87-row lists; the default team's stand in the pool. None for a club.
std::optional<PlayerPlace> place_of(TeamRow row, int player);

/// A name as the lists show it: joined, trimmed of blanks, then cut at its first zero byte.
std::string read_player_name(const Image& image, const PlayerPlace& place);
/// The names of all rosters, team by team; those of the pool, row by row.
std::vector<std::string> read_roster_names(const Image& image);
std::vector<std::string> read_pool_names(const Image& image);

/// Zeroes over the field, then the name without blanks around it.
void write_player_name(Image& image, const PlayerPlace& place, std::string_view name);
/// The bytes of an entry of hexadecimal digits, with or without blanks between them; as many as the entry has.
void write_player_record(Image& image, const PlayerPlace& place, std::string_view entry);

/// 0..255; none where there is no cost.
std::optional<int> read_cost(const Image& image, const PlayerPlace& place);
/// Nothing where there is no cost. Error 6 for a cost that is no byte.
void write_cost(Image& image, const PlayerPlace& place, std::int64_t cost);

}  // namespace kalco
