#include "work/report/player_table.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "work/report/skill_headings.h"
#include "work/sheets/ids.h"

namespace kalco {
namespace {

/// The columns behind the skills.
struct Columns {
    bool cost = false;
    bool clubs = false;   ///< Which clubs link to the player.
    bool origin = false;  ///< Where the player linked to stands.
};

/// How a column or a cell looks: a class of the style sheet, none for numbers.
struct Look {
    std::string_view name;
};

void write_heading(Markup& page, std::string_view text, Look look) {
    page.open("th").attribute("scope", "col");
    if (!look.name.empty()) page.attribute("class", look.name);
    page.text(text).close();
}

void open_table(Markup& page, const Columns& columns, std::string_view title) {
    page.open("div").attribute("class", "scroll").open("table").attribute("class", "players");
    page.leaf("caption", title).open("thead").open("tr");
    write_heading(page, "N°", {});
    write_heading(page, "Giocatore", {"l"});
    write_heading(page, "Ruolo", {"l"});
    write_heading(page, "Età", {});
    write_heading(page, "Altezza", {});
    write_heading(page, "Peso", {});
    write_heading(page, "Piede", {});
    for (const SkillHeading& skill : skill_headings) {
        page.open("th").attribute("scope", "col").attribute("class", "high");
        page.open("abbr").attribute("title", skill.whole).text(skill.shown).close().close();
    }
    if (columns.cost) write_heading(page, "Costo", {"high"});
    if (columns.clubs) write_heading(page, "Nei club", {"l"});
    if (columns.origin) write_heading(page, "Dalla rosa", {"l"});
    page.close().close().open("tbody").raw("\n");
}

void close_table(Markup& page) {
    page.close().close().close().raw("\n");
}

void write_cell(Markup& page, std::string_view text, Look look = {}) {
    page.open("td");
    if (!look.name.empty()) page.attribute("class", look.name);
    page.text(text).close();
}

/// "65÷70 Kg" of "C 65÷70 Kg".
std::string_view weight_of(std::string_view build) {
    const std::size_t blank = build.find(' ');
    return blank == std::string_view::npos ? build : build.substr(blank + 1);
}

void write_clubs(Markup& page, const Report& report, const ReportPlayer& player) {
    page.open("td").attribute("class", "l clubs");
    for (const Team club : player.clubs) {
        if (club != player.clubs.front()) page.text(", ");
        write_team_link(page, report, club);
    }
    page.close();
}

void write_origin(Markup& page, const Report& report, int row) {
    const ReportPlayer& player = report.players[static_cast<std::size_t>(row)];
    page.open("td").attribute("class", "l origin").open("a").attribute("href", '#' + player.id);
    page.text(player.team == default_list ? "Giocatori ML" : report.teams[player.team.place()].title).close().close();
}

/// A row that stands for a link has no id: the player has a row of his own.
void write_row(Markup& page, const Report& report, int row, std::string_view number, const Columns& columns) {
    const ReportPlayer& player = report.players[static_cast<std::size_t>(row)];
    page.open("tr");
    if (!columns.origin) page.attribute("id", player.id);
    write_cell(page, number);
    page.open("th").attribute("scope", "row").raw(portrait_use(player.looks)).text(player.name).close();
    page.open("td").attribute("class", "l").text(player.role);
    if (player.out_of_role) page.raw(" ").open("span").attribute("class", "out").text("fuori ruolo").close();
    page.close();
    write_cell(page, player.age);
    write_cell(page, player.height);
    write_cell(page, weight_of(player.build));
    write_cell(page, player.foot);
    for (const int skill : player.skills) {
        static constexpr std::array<std::string_view, 8> levels{"v0", "v1", "v2", "v3", "v4", "v5", "v6", "v7"};
        write_cell(page, std::to_string(skill), {levels[static_cast<std::size_t>(skill - lowest_skill)]});
    }
    if (columns.cost) write_cell(page, player.cost, {"cost"});
    if (columns.clubs) write_clubs(page, report, player);
    if (columns.origin) write_origin(page, report, row);
    page.close().raw("\n");
}

void write_missing_row(Markup& page, std::string_view number) {
    page.open("tr");
    write_cell(page, number);
    page.open("th").attribute("scope", "row").text("nessuno").close();
    page.open("td").attribute("colspan", static_cast<std::int64_t>(6 + skill_count)).close();
    page.close().raw("\n");
}

}  // namespace

void write_team_link(Markup& page, const Report& report, Team team) {
    const ReportTeam& named = report.teams[team.place()];
    page.open("a").attribute("href", '#' + named.id).text(named.title).close();
}

void write_roster_table(Markup& page, const Report& report, const ReportTeam& team) {
    const bool linked = is_club(team.team) || team.team == default_list;
    const bool club_links = !linked && !team.clubs.empty();
    const Columns columns{.cost = is_nation(team.team), .clubs = club_links, .origin = linked};
    open_table(page, columns, "Rosa: " + team.title);
    for (std::size_t i = 0; i < team.players.size(); ++i) {
        const std::string number = i < team.numbers.size() ? team.numbers[i] : std::string();
        if (team.players[i]) {
            write_row(page, report, *team.players[i], number, columns);
        } else {
            write_missing_row(page, number);
        }
    }
    close_table(page);
}

void write_pool_table(Markup& page, const Report& report) {
    const Columns columns{.cost = true, .clubs = true};
    open_table(page, columns, "Giocatori ML");
    for (int row = roster_rows; row < player_rows; ++row) {
        write_row(page, report, row, std::to_string(row - roster_rows + 1), columns);
    }
    close_table(page);
}

}  // namespace kalco
