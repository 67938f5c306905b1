#include "disc/team_names.h"

#include "disc/teams.h"

namespace kalco {
namespace {

std::optional<Pieces> full_width_field(Team team) {
    if (team.value() == split_full_width_team) return split_full_width_name;
    const auto entry = Off_Name_HEX(team.value());
    if (!entry) return std::nullopt;
    return Piece{entry->position, entry->length};
}

}  // namespace

std::optional<Pieces> name_field(Team team, NamePlace place) {
    if (!team.exists()) return std::nullopt;
    if (place == NamePlace::short_name) return Piece{short_name_position(team), short_name_bytes};
    if (place == NamePlace::full_width) return full_width_field(team);
    if (place == NamePlace::t2 && team.value() == split_t2_team) return split_t2_name;
    const auto table = static_cast<std::size_t>(place) - static_cast<std::size_t>(NamePlace::t1);
    const auto entry = Call_Name(team.value())[table];
    if (!entry) return std::nullopt;
    return Piece{entry->position, entry->length};
}

std::string read_name_bytes(const Image& image, Team team, NamePlace place) {
    const auto field = name_field(team, place);
    return field ? image.read(*field) : std::string();
}

}  // namespace kalco
