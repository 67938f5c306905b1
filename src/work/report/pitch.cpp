#include "work/report/pitch.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "disc/formation_facts.h"

namespace kalco {
namespace {

constexpr int width = 480;
constexpr int height = 312;
/// From the line of the pitch to the edge of the drawing.
constexpr int rim = 12;
constexpr int stripes = 8;
constexpr int radius = 12;

/// The letter of a role's line, which is its class on the page: defence, midfield, forward or unknown.
char line_of(std::string_view role) {
    const auto begins = [role](std::string_view start) { return role.starts_with(start); };
    if (begins("DC") || begins("TER") || role == "SW" || role == "LIB") return 'd';
    if (begins("CC") || begins("CL") || begins("CO")) return 'm';
    if (begins("CA") || begins("AL")) return 'f';
    return 'u';
}

int scaled(int value, int steps, int room) {
    return rim + (std::clamp(value, 0, steps) * (room - 2 * rim) + steps / 2) / steps;
}

void write_field(Markup& page) {
    const auto rectangle = [&page](std::string_view kind, int x, int y, int w, int h) {
        page.open("rect").attribute("class", kind).attribute("x", x).attribute("y", y);
        page.attribute("width", w).attribute("height", h).end();
    };
    rectangle("turf", 0, 0, width, height);
    for (int i = 1; i < stripes; i += 2) rectangle("mown", i * width / stripes, 0, width / stripes, height);
    rectangle("chalk", rim, rim, width - 2 * rim, height - 2 * rim);
    constexpr int area_width = 66;
    constexpr int area_height = 164;
    rectangle("chalk", rim, (height - area_height) / 2, area_width, area_height);
    rectangle("chalk", width - rim - area_width, (height - area_height) / 2, area_width, area_height);
    constexpr int circle = 40;
    page.open("circle").attribute("class", "chalk").attribute("cx", width / 2).attribute("cy", height / 2);
    page.attribute("r", circle).end();
    page.open("path").attribute("class", "chalk");
    page.attribute("d",
                   "M" + std::to_string(width / 2) + ',' + std::to_string(rim) + " V" + std::to_string(height - rim));
    page.end();
}

/// The player of a place of the roster, from 0 on.
void write_spot(Markup& page, const Report& report, const ReportTeam& team, std::size_t place, std::string_view role,
                int x, int y) {
    page.open("g").attribute("class", std::string("spot ") + (place == 0 ? 'g' : line_of(role)));
    page.attribute("transform", "translate(" + std::to_string(x) + ' ' + std::to_string(y) + ')');
    page.leaf("title", role).open("circle").attribute("r", radius).end();
    if (place < team.numbers.size()) {
        page.open("text").attribute("class", "no").attribute("y", 4).text(team.numbers[place]).close();
    }
    if (place < team.players.size() && team.players[place]) {
        const std::string& name = report.players[static_cast<std::size_t>(*team.players[place])].name;
        page.open("text").attribute("class", "nm").attribute("y", radius + 12).text(name).close();
    }
    page.close();
}

}  // namespace

std::string module_of(const std::vector<ReportSpot>& formation) {
    constexpr std::string_view lines = "dmf";
    std::array<int, lines.size()> counts{};
    for (const ReportSpot& spot : formation) {
        const std::size_t line = lines.find(line_of(spot.role));
        if (line == std::string_view::npos) return {};
        ++counts[line];
    }
    return std::to_string(counts[0]) + '-' + std::to_string(counts[1]) + '-' + std::to_string(counts[2]);
}

void write_pitch(Markup& page, const Report& report, const ReportTeam& team) {
    const std::string module = module_of(team.formation);
    page.open("figure").attribute("class", "pitch").open("svg");
    page.attribute("viewBox", "0 0 " + std::to_string(width) + ' ' + std::to_string(height));
    page.attribute("role", "img").attribute("aria-label", "Formazione " + module + " di " + team.title);
    write_field(page);
    constexpr int keeper_x = 3;
    write_spot(page, report, team, 0, "Portiere", scaled(keeper_x, pitch_x_steps, width), height / 2);
    for (std::size_t i = 0; i < team.formation.size(); ++i) {
        const ReportSpot& spot = team.formation[i];
        write_spot(page, report, team, i + 1, spot.role, scaled(spot.x, pitch_x_steps, width),
                   scaled(spot.y, pitch_y_steps, height));
    }
    page.close().leaf("figcaption", module.empty() ? "Formazione" : "Formazione " + module).close();
}

}  // namespace kalco
