#include "ctl/demo/clubs.h"

#include <algorithm>

#include "ctl/demo/line_ups.h"

namespace kalco::demo {
namespace {

/// The nation in whose league a club plays, by club.
constexpr std::array<int, Club::count> home_nations{3, 3, 3,  3,  3,  3,  3,  5,  5,  5,  5,  6,  6,  6,  6,  8,
                                                    8, 8, 10, 10, 10, 10, 10, 10, 10, 12, 12, 12, 26, 27, 28, 46};

/// Clubs that play with the whole roster of a team.
struct WholeTeam {
    Club club;
    Team team;
};
constexpr std::array<WholeTeam, 4> whole_teams{
    {{Club(1), Team(3)}, {Club(9), Team(5)}, {Club(20), Team(59)}, {Club(31), Team(46)}}};

/// One code names a player who stands in no table: the editor knows his name. A club has him among its reserves.
constexpr Club club_of_the_nameless{5};
constexpr std::size_t place_of_the_nameless = 20;

constexpr int highest_club_number = 99;

/// A player who can be linked.
struct Candidate {
    PlayerCode code;
    const Player* player;
    bool taken = false;
};

std::vector<Candidate> all_candidates(const World& world) {
    std::vector<Candidate> candidates;
    for (Team team(0); has_roster(team); ++team) {
        for (int player = 0; player < roster_players; ++player) {
            candidates.push_back({*code_of(RosterPlace{team, player}),
                                  &world.squads[team.place()].players[static_cast<std::size_t>(player)]});
        }
    }
    for (const PoolRow row : every<PoolRow>()) {
        const bool kept = std::find(DefaultSlots.begin(), DefaultSlots.end(), row) != DefaultSlots.end();
        if (!kept) candidates.push_back({*code_of(row), &world.pool[row.place()]});
    }
    return candidates;
}

/// A free player of a role: of the club's own nation as long as there are some, most often of the pool.
Candidate& choose(std::vector<Candidate>& candidates, Role role, int home, Random& random) {
    std::vector<Candidate*> own;
    std::vector<Candidate*> foreign;
    for (Candidate& candidate : candidates) {
        if (candidate.taken || candidate.player->values.role != static_cast<std::int64_t>(role)) continue;
        const int nation = int{candidate.code.team};
        if (nation == home) own.push_back(&candidate);
        if (nation != home && (nation < nation_count || nation >= roster_team_count)) foreign.push_back(&candidate);
    }
    const bool at_home = foreign.empty() || (!own.empty() && random.chance(70));
    return *random.one_of(at_home ? own : foreign);
}

void link_whole_team(LinkedSquad& club, const World& world, Team team) {
    club.squad = world.squads[team.place()];
    club.links = links_to_team(team);
}

void link_single_players(LinkedSquad& club, std::vector<Candidate>& candidates, int home, Random& random) {
    club.squad.strength = random.between(1, 4);
    club.squad.module = &random.one_of(module_rows);
    const Roles roles = squad_roles(line_up(*club.squad.module), random);
    for (std::size_t place = 0; place < roles.size(); ++place) {
        Candidate& chosen = choose(candidates, roles[place], home, random);
        chosen.taken = true;
        club.links[place] = chosen.code;
        club.squad.players[place] = *chosen.player;
    }
}

}  // namespace

void make_clubs(World& world, Random& random) {
    std::vector<Candidate> candidates = all_candidates(world);
    for (const Club number : every<Club>()) {
        LinkedSquad& club = world.clubs[number.place()];
        const auto* const whole = std::find_if(whole_teams.begin(), whole_teams.end(),
                                               [number](const WholeTeam& link) { return link.club == number; });
        if (whole != whole_teams.end()) {
            link_whole_team(club, world, whole->team);
        } else {
            link_single_players(club, candidates, home_nations[number.place()], random);
        }
        club.squad.numbers = make_numbers(highest_club_number, random);
    }
    world.clubs[club_of_the_nameless.place()].links[place_of_the_nameless] = vardal_code;
}

}  // namespace kalco::demo
