#include "work/sheets/ids.h"

#include <algorithm>
#include <charconv>

namespace kalco {
namespace {

constexpr std::size_t team_id_length = 3;
constexpr std::size_t player_id_length = 6;
constexpr std::size_t pool_id_length = 4;

/// A letter and the number in so many digits.
std::string letter_and_digits(char letter, int number, std::size_t digits) {
    const std::string text = std::to_string(number);
    return letter + std::string(digits - std::min(digits, text.size()), '0') + text;
}

/// The number behind the letter; none when the rest is not all digits.
std::optional<int> number_behind(char letter, std::string_view text) {
    if (text.empty() || text.front() != letter) return std::nullopt;
    text.remove_prefix(1);
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

}  // namespace

PlayerPlace place_of_row(int row) {
    if (row >= roster_rows) return PoolRow(row - roster_rows);
    return RosterPlace{Team(row / roster_players), row % roster_players};
}

int row_of_place(const PlayerPlace& place) {
    if (const auto* row = std::get_if<PoolRow>(&place)) return roster_rows + row->value();
    const auto& roster = std::get<RosterPlace>(place);
    return roster.team.value() * roster_players + roster.player;
}

Team team_of(const PlayerPlace& place) {
    const auto* roster = std::get_if<RosterPlace>(&place);
    return roster == nullptr ? default_list : roster->team;
}

std::string team_id(Team team) {
    return letter_and_digits('t', team.value(), team_id_length - 1);
}

std::string club_id(Club club) {
    return letter_and_digits('c', club.value(), team_id_length - 1);
}

std::string player_id(const PlayerPlace& place) {
    if (const auto* row = std::get_if<PoolRow>(&place)) {
        return letter_and_digits('m', row->value() + 1, pool_id_length - 1);
    }
    const auto& roster = std::get<RosterPlace>(place);
    return team_id(roster.team) + letter_and_digits('p', roster.player + 1, player_id_length - team_id_length - 1);
}

std::optional<Team> team_of_id(std::string_view id) {
    if (id.size() != team_id_length) return std::nullopt;
    const auto number = number_behind('t', id);
    if (!number || !Team(*number).exists()) return std::nullopt;
    return Team(*number);
}

std::optional<Club> club_of_id(std::string_view id) {
    if (id.size() != team_id_length) return std::nullopt;
    const auto number = number_behind('c', id);
    if (!number || !Club(*number).exists()) return std::nullopt;
    return Club(*number);
}

std::optional<PlayerPlace> player_of_id(std::string_view id) {
    if (id.size() == pool_id_length) {
        const auto number = number_behind('m', id);
        if (!number || !PoolRow(*number - 1).exists()) return std::nullopt;
        return PoolRow(*number - 1);
    }
    if (id.size() != player_id_length) return std::nullopt;
    const auto team = team_of_id(id.substr(0, team_id_length));
    const auto place = number_behind('p', id.substr(team_id_length));
    if (!team || !has_roster(*team) || !place || *place < 1 || *place > roster_players) return std::nullopt;
    return RosterPlace{*team, *place - 1};
}

}  // namespace kalco
