#include "disc/teams.h"

#include <algorithm>

namespace kalco {

std::vector<std::string> all_team_rows() {
    std::vector<std::string> rows(team_facts.size());
    std::transform(team_facts.begin(), team_facts.end(), rows.begin(),
                   [](const TeamFacts& facts) { return std::string(facts.row); });
    return rows;
}

std::vector<std::string> short_team_rows() {
    std::vector<std::string> rows;
    rows.reserve(TeamRow::count);
    for (const TeamRow row : every<TeamRow>()) {
        rows.emplace_back(row == default_team_row ? default_team_name : team_facts[team_of(row).place()].row);
    }
    return rows;
}

std::vector<std::string> club_rows() {
    std::vector<std::string> rows;
    rows.reserve(Club::count);
    for (const Club club : every<Club>()) rows.emplace_back(team_facts[team_of(club).place()].row);
    return rows;
}

}  // namespace kalco
