#include "disc/players.h"

namespace kalco {

Pieces player_name_field(const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return pool_name_field(row->value());
    const auto& roster = std::get<RosterPlace>(place);
    return roster_name_field(roster.team.value(), roster.player);
}

Pieces player_record_field(const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return pool_record_field(row->value());
    const auto& roster = std::get<RosterPlace>(place);
    return roster_record_field(roster.team.value(), roster.player);
}

std::optional<ImagePos> cost_position(const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return cost_position(default_list_team, row->value());
    const auto& roster = std::get<RosterPlace>(place);
    if (!is_nation(roster.team)) return std::nullopt;
    return cost_position(roster.team.value(), roster.player);
}

PlayerPlace place_of(Team team, int player) {
    if (team == default_list) return PoolRow(player);
    return RosterPlace{team, player};
}

std::optional<PlayerPlace> place_of(TeamRow row, int player) {
    if (row == default_team_row) return PoolRow(DefaultSlots.at(static_cast<std::size_t>(player)));
    if (is_club(row)) return std::nullopt;
    return RosterPlace{team_of(row), player};
}

std::string read_player_name(const Image& image, const PlayerPlace& place) {
    return read_player_name(image, player_name_field(place));
}

std::optional<int> read_cost(const Image& image, const PlayerPlace& place) {
    const auto position = cost_position(place);
    if (!position) return std::nullopt;
    return static_cast<unsigned char>(image.read(*position, 1)[0]);
}

}  // namespace kalco
