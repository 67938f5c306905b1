#include "disc/players.h"

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

/// The costs of the nations stand team by team, those of the pool row by row.
constexpr ImagePos first_roster_cost = 3067405;
constexpr ImagePos first_pool_cost = 3069513;
constexpr std::int64_t highest_byte = 255;

}  // namespace

Pieces player_name_field(const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return pool_name_field(*row);
    return roster_name_field(std::get<RosterPlace>(place));
}

Pieces player_record_field(const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return pool_record_field(*row);
    return roster_record_field(std::get<RosterPlace>(place));
}

std::optional<ImagePos> cost_position(const PlayerPlace& place) {
    if (const auto* const row = std::get_if<PoolRow>(&place)) return first_pool_cost + row->value();
    const auto& [team, player] = std::get<RosterPlace>(place);
    if (!has_cost(team)) return std::nullopt;
    return first_roster_cost + roster_players * team.value() + player;
}

PlayerPlace place_of(Team team, int player) {
    if (team == default_list) return PoolRow(player);
    return RosterPlace{team, player};
}

std::optional<PlayerPlace> place_of(TeamRow row, int player) {
    if (row == default_team_row) return DefaultSlots.at(static_cast<std::size_t>(player));
    if (is_club(row)) return std::nullopt;
    return RosterPlace{team_of(row), player};
}

std::string read_player_name(const Image& image, const PlayerPlace& place) {
    const std::string bytes = image.read(player_name_field(place));
    return std::string(until_zero(trim(bytes)));
}

std::vector<std::string> read_roster_names(const Image& image) {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(roster_team_count) * roster_players);
    for (Team team(0); has_roster(team); ++team) {
        for (int player = 0; player < roster_players; ++player) {
            names.push_back(read_player_name(image, RosterPlace{team, player}));
        }
    }
    return names;
}

std::vector<std::string> read_pool_names(const Image& image) {
    std::vector<std::string> names;
    names.reserve(PoolRow::count);
    for (const PoolRow row : every<PoolRow>()) names.push_back(read_player_name(image, row));
    return names;
}

void write_player_name(Image& image, const PlayerPlace& place, std::string_view name) {
    const Pieces field = player_name_field(place);
    image.clear(field);
    image.write(field, trim(name));
}

void write_player_record(Image& image, const PlayerPlace& place, std::string_view entry) {
    image.write(player_record_field(place), bytes_of_digits(without_blanks(entry)));
}

std::optional<int> read_cost(const Image& image, const PlayerPlace& place) {
    const auto position = cost_position(place);
    if (!position) return std::nullopt;
    return static_cast<unsigned char>(image.read(*position, 1)[0]);
}

void write_cost(Image& image, const PlayerPlace& place, std::int64_t cost) {
    const auto position = cost_position(place);
    if (!position) return;
    if (cost < 0 || cost > highest_byte) throw RuntimeError(error::overflow);
    image.write(*position, std::string(1, static_cast<char>(cost)));
}

}  // namespace kalco
