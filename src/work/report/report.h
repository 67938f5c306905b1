#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "disc/indexes.h"
#include "disc/player_facts.h"
#include "disc/roster.h"
#include "work/portrait.h"
#include "work/sheets/disc_bytes.h"

/// What a page about a disc tells: its teams and players as the sheets have them. All texts are UTF-8.
namespace kalco {

struct ReportPlayer {
    Team team;  ///< Of his roster; the default list for the pool.
    std::string id;
    std::string name;
    std::string role;
    bool out_of_role = false;
    std::string height, build, age, foot;
    std::string cost;  ///< Empty where there is none.
    std::array<int, skill_count> skills{};
    Looks looks;
    std::vector<Team> clubs;  ///< That link to the player, rising, each once.
};

/// An outfield player's place: role label, X to the other goal, Y across.
struct ReportSpot {
    std::string role;
    int x = 0;
    int y = 0;
};

struct ReportTeam {
    Team team;
    std::string id;
    std::string title;  ///< The best of its names.
    std::string short_name;
    std::vector<std::string> names;  ///< Its different names, the full one first.
    /// Rows of Report::players, in the order of the roster; none for a link that names nobody.
    std::vector<std::optional<int>> players;
    std::vector<std::string> numbers;     ///< By player; none for a team without shirts.
    std::vector<ReportSpot> formation;    ///< Of the players from the second on; none for a team without one.
    std::vector<std::string> bars;        ///< Cells; none for a team without them.
    std::vector<std::string> set_pieces;  ///< Cells: places from 1 on; none for a team without them.
    std::vector<Team> clubs;              ///< Those that link to one of its players, rising.
};

struct Report {
    std::vector<ReportPlayer> players;  ///< The rows of the players' sheet.
    std::vector<ReportTeam> teams;      ///< All 96, the default team last.
};

Report read_report(const DiscBytes& disc);
/// The players, and of the teams only their names and who plays for them.
Report read_rosters(const DiscBytes& disc);

}  // namespace kalco
