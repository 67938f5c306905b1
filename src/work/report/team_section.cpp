#include "work/report/team_section.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "disc/bars.h"
#include "disc/set_pieces.h"
#include "work/report/pitch.h"
#include "work/report/player_table.h"

namespace kalco {
namespace {

constexpr std::array<std::string_view, bar_count> bar_titles{"Attacco", "Difesa", "Potenza", "Velocità", "Tecnica"};
constexpr std::array<std::string_view, set_piece_bytes> set_piece_titles{
    "Punizioni corte", "Punizioni lunghe", "Corner da destra", "Corner da sinistra", "Rigori", "Capitano"};

/// A number of a cell; none for any other text.
std::optional<int> number_of_cell(std::string_view cell) {
    constexpr std::size_t most_digits = 4;
    const auto digit = [](char character) { return character >= '0' && character <= '9'; };
    if (cell.empty() || cell.size() > most_digits || !std::ranges::all_of(cell, digit)) return std::nullopt;
    int number = 0;
    for (const char character : cell) number = 10 * number + (character - '0');
    return number;
}

/// The drawn bar of a value 0..10 and the value.
void write_meter(Markup& page, std::string_view cell) {
    const int value = std::min(number_of_cell(cell).value_or(0), 10);
    page.open("i").attribute("style", "--w:" + std::to_string(10 * value) + '%').close().leaf("b", cell);
}

void write_names(Markup& page, const ReportTeam& team) {
    page.open("h3").attribute("id", "nome-" + team.id).text(team.title);
    if (!team.short_name.empty()) page.raw(" ").open("span").attribute("class", "tag").text(team.short_name).close();
    page.raw(" ").open("span").attribute("class", "id").text(team.id).close().close();
    std::string others;
    for (const std::string& name : team.names) {
        if (name != team.title) others += (others.empty() ? "" : ", ") + name;
    }
    if (!others.empty()) page.open("p").attribute("class", "note").text("Anche: " + others).close();
}

/// Whom a club links to, or which clubs link to this team.
void write_links(Markup& page, const Report& report, const ReportTeam& team) {
    std::vector<std::pair<Team, int>> origins;
    for (const auto& row : team.players) {
        if (!row || !is_club(team.team)) continue;
        const Team origin = report.players[static_cast<std::size_t>(*row)].team;
        const auto known = std::ranges::find(origins, origin, &std::pair<Team, int>::first);
        if (known == origins.end()) {
            origins.emplace_back(origin, 1);
        } else {
            ++known->second;
        }
    }
    std::ranges::stable_sort(origins, std::greater(), &std::pair<Team, int>::second);
    if (!origins.empty()) {
        page.open("p").attribute("class", "note").text("Collegato a: ");
        for (const auto& [origin, count] : origins) {
            if (origin != origins.front().first) page.text(", ");
            if (origin == default_list) {
                page.open("a").attribute("href", "#giocatori-ml").text("Giocatori ML").close();
            } else {
                write_team_link(page, report, origin);
            }
            page.text(" (" + std::to_string(count) + ')');
        }
        page.close();
    }
    if (team.clubs.empty() || team.team == default_list) return;
    page.open("p").attribute("class", "note").text("Nei club: ");
    for (const Team club : team.clubs) {
        if (club != team.clubs.front()) page.text(", ");
        write_team_link(page, report, club);
    }
    page.close();
}

void write_bars(Markup& page, const ReportTeam& team) {
    page.open("div").leaf("h4", "Barre").open("dl").attribute("class", "meter");
    for (std::size_t i = 0; i < team.bars.size(); ++i) {
        page.leaf("dt", bar_titles[i]).open("dd");
        write_meter(page, team.bars[i]);
        page.close();
    }
    page.close().close();
}

/// The player at a place of the roster, as the cell of a set piece has it.
void write_taker(Markup& page, const Report& report, const ReportTeam& team, std::string_view cell) {
    const auto place = number_of_cell(cell);
    const bool known = place && *place >= 1 && *place <= static_cast<int>(team.players.size()) &&
                       team.players[static_cast<std::size_t>(*place - 1)];
    if (!known) {
        page.text(cell);
        return;
    }
    const auto i = static_cast<std::size_t>(*place - 1);
    page.text(report.players[static_cast<std::size_t>(*team.players[i])].name);
    if (i < team.numbers.size()) page.raw(" ").leaf("small", team.numbers[i]);
}

void write_set_pieces(Markup& page, const Report& report, const ReportTeam& team) {
    page.open("div").leaf("h4", "Tiratori e capitano").open("dl").attribute("class", "pieces");
    for (std::size_t i = 0; i < team.set_pieces.size(); ++i) {
        page.leaf("dt", set_piece_titles[i]).open("dd");
        write_taker(page, report, team, team.set_pieces[i]);
        page.close();
    }
    page.close().close();
}

}  // namespace

void write_team(Markup& page, const Report& report, const ReportTeam& team) {
    page.open("section").attribute("class", "team").attribute("id", team.id);
    page.attribute("aria-labelledby", "nome-" + team.id);
    write_names(page, team);
    write_links(page, report, team);
    if (!team.formation.empty()) {
        page.open("div").attribute("class", "facts");
        write_pitch(page, report, team);
        if (!team.bars.empty()) write_bars(page, team);
        if (!team.set_pieces.empty()) write_set_pieces(page, report, team);
        page.close();
    }
    write_roster_table(page, report, team);
    page.close().raw("\n");
}

void write_comparison(Markup& page, const Report& report) {
    page.open("div").attribute("class", "scroll team comparison").open("table").attribute("class", "compare");
    page.leaf("caption", "Le barre delle squadre, da 0 a 10").open("thead").open("tr");
    const auto heading = [&page](std::string_view title, std::string_view kind) {
        page.open("th").attribute("scope", "col").attribute("class", kind).text(title).close();
    };
    heading("Squadra", "l");
    heading("Sigla", "l");
    for (const std::string_view title : bar_titles) heading(title, "high");
    page.close().close().open("tbody").raw("\n");
    for (const ReportTeam& team : report.teams) {
        if (team.bars.empty()) continue;
        page.open("tr").open("th").attribute("scope", "row");
        write_team_link(page, report, team.team);
        page.close().open("td").attribute("class", "l").text(team.short_name).close();
        for (const std::string& bar : team.bars) {
            page.open("td");
            write_meter(page, bar);
            page.close();
        }
        page.close().raw("\n");
    }
    page.close().close().close().raw("\n");
}

}  // namespace kalco
