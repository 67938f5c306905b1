#include <algorithm>

#include "ctl/demo/tables.h"
#include "disc/bars.h"
#include "disc/codec/hextext.h"
#include "disc/formation.h"
#include "disc/links.h"
#include "disc/numbers.h"
#include "disc/set_pieces.h"

namespace kalco::demo {
namespace {

/// By team of cboSeqSQ, without the default list.
const Squad& squad_of(const World& world, Team team) {
    const auto club = club_of(team);
    return club ? world.clubs[club->place()].squad : world.squads[team.place()];
}

std::string formation_of(const Squad& squad, Random& random) {
    std::string x = bytes_of_digits(squad.module->x);
    std::string y = bytes_of_digits(squad.module->y);
    if (random.chance(40)) {
        for (char& value : x) value = static_cast<char>(value + random.between(-1, 2));
        for (char& value : y) value = static_cast<char>(value + random.between(-3, 3));
    }
    return bytes_of_digits(squad.module->roles) + x + y;
}

StoredNumbers numbers_of(const Squad& squad) {
    StoredNumbers stored;
    stored.numbers = squad.numbers;
    return stored;
}

/// Players who fit a set piece best, the goalkeeper only as the captain.
std::string set_pieces_of(const Squad& squad) {
    const auto best = [&squad](auto&& worth) {
        const auto* const first = squad.players.begin() + 1;
        const auto* const last = squad.players.begin() + set_piece_rows;
        const auto* const found = std::max_element(
            first, last, [&](const Player& a, const Player& b) { return worth(a.values) < worth(b.values); });
        return static_cast<char>(found - squad.players.begin());
    };
    const char short_kicks = best([](const PlayerValues& player) { return player.skill(Skill::curve); });
    const char long_kicks = best([](const PlayerValues& player) { return player.skill(Skill::shot_power); });
    const char right_corners = best([](const PlayerValues& player) {
        return player.skill(Skill::curve) + player.skill(Skill::passing) + (player.foot == 1 ? 2 : 0);
    });
    const char left_corners = best([](const PlayerValues& player) {
        return player.skill(Skill::curve) + player.skill(Skill::passing) + (player.foot == 0 ? 2 : 0);
    });
    const char penalties = best([](const PlayerValues& player) { return player.skill(Skill::shot_accuracy); });
    const auto* const oldest =
        std::max_element(squad.players.begin(), squad.players.begin() + set_piece_rows,
                         [](const Player& a, const Player& b) { return a.values.age < b.values.age; });
    const char captain = static_cast<char>(oldest - squad.players.begin());
    return {short_kicks, long_kicks, right_corners, left_corners, penalties, captain};
}

}  // namespace

void put_links(DemoDisc& disc, const World& world) {
    for (const Club club : every<Club>()) {
        disc.put(link_table_field(club), bytes_of_links(world.clubs[club.place()].links));
    }
}

void put_formations(DemoDisc& disc, const World& world, Random& random) {
    for (Team team(0); team < default_list; ++team) {
        disc.put(field_at(FormationBase + formation_bytes * team.value(), formation_bytes),
                 formation_of(squad_of(world, team), random));
    }
    disc.put(formation_field(default_team_row), formation_of(world.default_team, random));
}

void put_bars(DemoDisc& disc, const World& world, Random& random) {
    constexpr int lowest = 3;
    constexpr int highest = 9;
    for (Team team(0); team < default_list; ++team) {
        std::string bars;
        for (int bar = 0; bar < bar_count; ++bar) {
            const int value = 4 + squad_of(world, team).strength + random.between(-1, 1);
            bars += static_cast<char>(std::clamp(value, lowest, highest));
        }
        disc.put(field_at(BarsBase + bar_count * team.value(), bar_count), bars);
    }
}

void put_numbers(DemoDisc& disc, const World& world) {
    for (const TeamRow row : every<TeamRow>()) {
        const Squad& squad = row == default_team_row ? world.default_team : squad_of(world, team_of(row));
        disc.put(number_field(row), pack_numbers(row, numbers_of(squad)));
    }
    // Packed like a nation's.
    for (Team team(nation_count); has_roster(team); ++team) {
        disc.put(field_at(NationalNumberBase + national_number_bytes * team.value(), national_number_bytes),
                 pack_numbers(TeamRow(0), numbers_of(squad_of(world, team))));
    }
}

void put_set_pieces(DemoDisc& disc, const World& world) {
    for (Team team(0); team < default_list; ++team) {
        disc.put(field_at(SetPieceBase + set_piece_bytes * team.value(), set_piece_bytes),
                 set_pieces_of(squad_of(world, team)));
    }
    disc.put(set_piece_field(default_team_row), set_pieces_of(world.default_team));
}

}  // namespace kalco::demo
