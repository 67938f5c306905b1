#include "work/report/page.h"

#include <algorithm>
#include <array>

#include "work/embedded.h"
#include "work/markup.h"
#include "work/report/player_table.h"
#include "work/report/team_section.h"

namespace kalco {
namespace {

/// A part of the page: some of the teams.
struct Group {
    std::string_view id;
    std::string_view title;
    bool (*holds)(Team team);
};

constexpr std::array<Group, 4> groups{{
    {"nazionali", "Nazionali", [](Team team) { return is_nation(team); }},
    {"classiche", "All Star e squadre classiche", [](Team team) { return has_roster(team) && !is_nation(team); }},
    {"club", "Club della Master League", [](Team team) { return is_club(team); }},
    {"default", "Squadra Default ML", [](Team team) { return team == default_list; }},
}};
constexpr std::string_view comparison_id = "confronto";
constexpr std::string_view comparison_title = "Le squadre a confronto";
constexpr std::string_view pool_id = "giocatori-ml";
constexpr std::string_view pool_title = "Giocatori ML";

std::string_view embedded(std::string_view name) {
    return std::ranges::find(report_files(), name, &EmbeddedFile::name)->text;
}

void write_head(Markup& page, std::string_view title) {
    page.open("head").open("meta").attribute("charset", "utf-8").end();
    page.open("meta").attribute("name", "viewport").attribute("content", "width=device-width, initial-scale=1").end();
    // Whatever a text of the disc holds, the page loads nothing.
    page.open("meta")
        .attribute("http-equiv", "Content-Security-Policy")
        .attribute("content", "default-src 'none'; style-src 'unsafe-inline'; script-src 'unsafe-inline'")
        .end();
    page.leaf("title", std::string(title) + " – Kalco");
    page.open("style").raw("\n").raw(portrait_style()).raw(embedded("style")).close().close();
}

void write_bar(Markup& page) {
    page.open("div").attribute("class", "bar").open("div").attribute("class", "wrap");
    page.open("nav").attribute("aria-label", "Parti della pagina");
    const auto link = [&page](std::string_view id, std::string_view title) {
        page.open("a").attribute("href", '#' + std::string(id)).text(title).close();
    };
    link(comparison_id, "Confronto");
    link(groups[0].id, groups[0].title);
    link(groups[1].id, "Classiche");
    link(groups[2].id, "Club");
    link(pool_id, pool_title);
    page.close();
    page.open("form").attribute("class", "find").attribute("role", "search").attribute("hidden", "hidden");
    page.open("input").attribute("type", "search").attribute("placeholder", "Cerca giocatori, ruoli, squadre");
    page.attribute("aria-label", "Cerca giocatori, ruoli o squadre").end();
    page.open("output").close().close().close().close().raw("\n");
}

void open_heading(Markup& page, std::string_view id, std::string_view title) {
    page.open("h2").attribute("id", id).text(title).close().raw("\n");
}

void write_group(Markup& page, const Report& report, const Group& group) {
    open_heading(page, group.id, group.title);
    page.open("ul").attribute("class", "index");
    for (const ReportTeam& team : report.teams) {
        if (!group.holds(team.team)) continue;
        page.open("li").open("a").attribute("href", '#' + team.id).text(team.title).close().close();
    }
    page.close().raw("\n");
    for (const ReportTeam& team : report.teams) {
        if (group.holds(team.team)) write_team(page, report, team);
    }
}

void write_pool(Markup& page, const Report& report) {
    open_heading(page, pool_id, pool_title);
    page.open("section").attribute("class", "team pool").attribute("aria-labelledby", "pool");
    page.open("h3").attribute("id", "pool").text("I giocatori fuori dalle rose").close();
    write_pool_table(page, report);
    page.close().raw("\n");
}

}  // namespace

std::string report_page(const Report& report, std::string_view title) {
    Markup page;
    page.raw("<!DOCTYPE html>\n").open("html").attribute("lang", "it");
    page.attribute("xmlns", "http://www.w3.org/1999/xhtml").raw("\n");
    write_head(page, title);
    page.open("body").raw("\n");
    page.open("svg").attribute("class", "symbols").attribute("aria-hidden", "true").raw("\n");
    page.raw(portrait_symbols()).close().raw("\n");
    page.open("header").attribute("class", "top").open("div").attribute("class", "wrap");
    page.leaf("h1", title);
    page.leaf("p", std::to_string(report.teams.size() - 1) + " squadre e " + std::to_string(report.players.size()) +
                       " giocatori: rose, formazioni, barre, numeri di maglia, tiratori e link della Master League.");
    page.close().close().raw("\n");
    write_bar(page);
    page.open("main").attribute("class", "wrap");
    open_heading(page, comparison_id, comparison_title);
    write_comparison(page, report);
    for (const Group& group : groups) write_group(page, report, group);
    write_pool(page, report);
    page.close().raw("\n");
    page.open("footer").attribute("class", "wrap");
    page.text("Fatto da Kalco: quello che c'è scritto nell'immagine, letto così com'è.").close().raw("\n");
    page.open("script").raw("\n").raw(embedded("script")).close();
    page.close().close().raw("\n");
    return page.take();
}

}  // namespace kalco
