#pragma once

#include <optional>
#include <string>
#include <variant>

#include "disc/image/image.h"
#include "disc/image/position.h"
#include "disc/indexes.h"
#include "disc/roster.h"

/// A player by his place, wherever he stands: his name, his record and his cost.
namespace kalco {

/// Place 0..22 in the roster of a team with players of its own.
struct RosterPlace {
    Team team;
    int player = 0;

    friend constexpr bool operator==(const RosterPlace&, const RosterPlace&) = default;
};

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

/// The name as the lists show it.
std::string read_player_name(const Image& image, const PlayerPlace& place);
/// 0..255; none where there is no cost.
std::optional<int> read_cost(const Image& image, const PlayerPlace& place);

}  // namespace kalco
