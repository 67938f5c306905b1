#include "ctl/demo/clubs.h"

#include <algorithm>

#include "ctl/demo/line_ups.h"
#include "disc/codec/hextext.h"
#include "disc/player_codes.h"

namespace kalco::demo {
namespace {

/// The nation in whose league a club plays, by club.
constexpr std::array<int, club_count> home_nations{3, 3, 3,  3,  3,  3,  3,  5,  5,  5,  5,  6,  6,  6,  6,  8,
                                                   8, 8, 10, 10, 10, 10, 10, 10, 10, 12, 12, 12, 26, 27, 28, 46};

/// Clubs that play with the whole roster of a team.
struct WholeTeam {
    int club;
    int team;
};
constexpr std::array<WholeTeam, 4> whole_teams{{{1, 3}, {9, 5}, {20, 59}, {31, 46}}};

/// One code names a player who stands in no table: the editor knows his name. A club has him among its reserves.
constexpr int club_of_the_nameless = 5;
constexpr std::size_t place_of_the_nameless = 20;
constexpr auto code_of_the_nameless = "2517";

constexpr int highest_club_number = 99;

/// A player who can be linked.
struct Candidate {
    std::string code;
    const Player* player;
    bool taken = false;
};

std::vector<Candidate> all_candidates(const World& world) {
    std::vector<Candidate> candidates;
    const std::vector<std::string> places = roster_codes();
    for (std::size_t k = 0; k < places.size(); ++k) {
        candidates.push_back({places[k], &world.squads[k / roster_players].players[k % roster_players]});
    }
    const std::vector<std::string> rows = pool_codes();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const bool kept = std::find(DefaultSlots.begin(), DefaultSlots.end(), row) != DefaultSlots.end();
        if (!kept) candidates.push_back({rows[row], &world.pool[row]});
    }
    return candidates;
}

/// A free player of a role: of the club's own nation as long as there are some, most often of the pool.
Candidate& choose(std::vector<Candidate>& candidates, Role role, int home, Random& random) {
    std::vector<Candidate*> own;
    std::vector<Candidate*> foreign;
    for (Candidate& candidate : candidates) {
        if (candidate.taken || candidate.player->values.role != static_cast<std::int64_t>(role)) continue;
        const int nation = nation_of_code(candidate.code);
        if (nation == home) own.push_back(&candidate);
        if (nation != home && (nation < nation_count || nation >= roster_team_count)) foreign.push_back(&candidate);
    }
    const bool at_home = foreign.empty() || (!own.empty() && random.chance(70));
    return *random.one_of(at_home ? own : foreign);
}

void link_whole_team(Club& club, const World& world, int team) {
    const std::vector<std::string> codes = roster_codes();
    club.squad = world.squads[static_cast<std::size_t>(team)];
    std::copy_n(codes.begin() + static_cast<std::ptrdiff_t>(team) * roster_players, roster_players, club.codes.begin());
}

void link_single_players(Club& club, std::vector<Candidate>& candidates, int home, Random& random) {
    club.squad.strength = random.between(1, 4);
    club.squad.module = &random.one_of(module_rows);
    const Roles roles = squad_roles(line_up(*club.squad.module), random);
    for (std::size_t place = 0; place < roles.size(); ++place) {
        Candidate& chosen = choose(candidates, roles[place], home, random);
        chosen.taken = true;
        club.codes[place] = chosen.code;
        club.squad.players[place] = *chosen.player;
    }
}

}  // namespace

int nation_of_code(std::string_view code) {
    return hex_pair(code.substr(0, 2));
}

void make_clubs(World& world, Random& random) {
    std::vector<Candidate> candidates = all_candidates(world);
    for (int number = 0; number < club_count; ++number) {
        Club& club = world.clubs[static_cast<std::size_t>(number)];
        const auto* const whole = std::find_if(whole_teams.begin(), whole_teams.end(),
                                               [number](const WholeTeam& link) { return link.club == number; });
        if (whole != whole_teams.end()) {
            link_whole_team(club, world, whole->team);
        } else {
            link_single_players(club, candidates, home_nations[static_cast<std::size_t>(number)], random);
        }
        club.squad.numbers = make_numbers(highest_club_number, random);
    }
    world.clubs[club_of_the_nameless].codes[place_of_the_nameless] = code_of_the_nameless;
}

}  // namespace kalco::demo
