#include "work/report/report.h"

#include <algorithm>

#include "disc/codec/latin1.h"
#include "disc/formation_facts.h"
#include "disc/players.h"
#include "disc/teams.h"
#include "work/sheets/ids.h"
#include "work/sheets/sheets.h"
#include "work/sheets/values.h"

namespace kalco {
namespace {

/// A sheet of a disc.
class SheetView {
public:
    SheetView(const DiscBytes& disc, std::string_view sheet) : disc_(disc), sheet_(*sheet_named(sheet)) {}

    const SheetColumn& column(std::string_view name) const { return *sheet_.column_named(name); }
    int rows() const { return sheet_.rows; }
    std::string id(int row) const { return sheet_.id(row); }
    std::optional<int> row_of(std::string_view id) const { return sheet_.row_of(id); }

    std::string cell(const SheetColumn& column, int row) const { return cell_at(disc_, column, row); }
    /// The stored number.
    int number(const SheetColumn& column, int row) const {
        const FieldValue value = stored_value(disc_, column, row);
        const auto* number = std::get_if<unsigned>(&value);
        return number == nullptr ? 0 : static_cast<int>(*number);
    }
    /// The cells of all columns; none for an id that the sheet lacks.
    std::vector<std::string> cells(std::string_view id) const {
        std::vector<std::string> cells;
        const auto row = row_of(id);
        if (!row) return cells;
        for (const SheetColumn& column : sheet_.columns) cells.push_back(cell(column, *row));
        return cells;
    }

private:
    const DiscBytes& disc_;
    const Sheet& sheet_;
};

template <std::size_t n>
std::string text_at(const std::array<std::string_view, n>& texts, int value) {
    const auto place = static_cast<std::size_t>(value);
    return place < n ? std::string(texts[place]) : std::string();
}

/// Reads rows of the players, whose columns are looked up once.
class PlayerReader {
public:
    explicit PlayerReader(const DiscBytes& disc) : sheet_(disc, players_sheet) {
        // The skills stand side by side, in the order of Skill.
        const SheetColumn* first_skill = &sheet_.column("attack");
        for (std::size_t i = 0; i < skill_count; ++i) skills_[i] = first_skill + i;
    }

    int rows() const { return sheet_.rows(); }

    ReportPlayer read(int row) const {
        const auto cell = [&](const SheetColumn& column) { return sheet_.cell(column, row); };
        ReportPlayer player;
        player.team = team_of(place_of_row(row));
        player.id = sheet_.id(row);
        player.name = cell(name_);
        player.role = cell(role_);
        player.out_of_role = sheet_.number(out_of_role_, row) != 0;
        player.height = cell(height_);
        player.build = cell(build_);
        player.age = cell(age_);
        player.foot = cell(foot_);
        player.cost = cell(cost_);
        for (std::size_t i = 0; i < skill_count; ++i) {
            player.skills[i] = lowest_skill + sheet_.number(*skills_[i], row);
        }
        player.looks = {.skin = sheet_.number(skin_, row),
                        .hair_style = text_at(hair_style_texts, sheet_.number(hair_style_, row)),
                        .hair_colour = sheet_.number(hair_colour_, row),
                        .beard_style = text_at(beard_texts, sheet_.number(beard_style_, row)),
                        .beard_colour = sheet_.number(beard_colour_, row)};
        return player;
    }

private:
    SheetView sheet_;
    std::array<const SheetColumn*, skill_count> skills_{};
    const SheetColumn& name_ = sheet_.column("name");
    const SheetColumn& role_ = sheet_.column("role");
    const SheetColumn& out_of_role_ = sheet_.column("out_of_role");
    const SheetColumn& height_ = sheet_.column("height");
    const SheetColumn& build_ = sheet_.column("build");
    const SheetColumn& age_ = sheet_.column("age");
    const SheetColumn& foot_ = sheet_.column("foot");
    const SheetColumn& cost_ = sheet_.column("cost");
    const SheetColumn& skin_ = sheet_.column("skin");
    const SheetColumn& hair_style_ = sheet_.column("hair_style");
    const SheetColumn& hair_colour_ = sheet_.column("hair_colour");
    const SheetColumn& beard_style_ = sheet_.column("beard_style");
    const SheetColumn& beard_colour_ = sheet_.column("beard_colour");
};

char small_letter(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// "France" of "Franc" and "FRANCE": each table holds as much of a name as fits.
std::string completed(std::string name, const std::vector<std::string>& names) {
    const auto same = [](char a, char b) { return small_letter(a) == small_letter(b); };
    for (const std::string& other : names) {
        if (other.size() <= name.size() || !std::equal(name.begin(), name.end(), other.begin(), same)) continue;
        for (std::size_t i = name.size(); i < other.size(); ++i) name += small_letter(other[i]);
    }
    return name;
}

/// Reads a team's names and who its players are.
class RosterReader {
public:
    explicit RosterReader(const DiscBytes& disc) : names_(disc, "teams"), links_(disc, "links") {}

    ReportTeam read(Team team) const {
        ReportTeam report;
        report.team = team;
        report.id = team_id(team);
        read_names(report);
        read_players(report);
        return report;
    }

private:
    void read_names(ReportTeam& report) const {
        std::vector<std::string> cells = names_.cells(report.id);
        if (!cells.empty()) {
            report.short_name = cells.front();
            cells.erase(cells.begin());
        }
        for (const std::string& name : cells) {
            const bool known = std::ranges::find(report.names, name) != report.names.end();
            if (!name.empty() && !known) report.names.push_back(name);
        }
        const auto fit = std::ranges::find_if(report.names, [](const std::string& name) { return name[0] != '#'; });
        if (report.team == default_list) {
            report.title = default_team_name;
        } else if (fit != report.names.end()) {
            report.title = completed(*fit, report.names);
        } else {
            report.title = utf8_of_latin1(team_facts[report.team.place()].row);
        }
    }

    void read_players(ReportTeam& report) const {
        if (const auto club = club_of(report.team)) {
            for (const std::string& id : links_.cells(club_id(*club))) {
                const auto place = player_of_id(id);
                report.players.push_back(place ? std::optional(row_of_place(*place)) : std::nullopt);
            }
            return;
        }
        for (int player = 0; player < roster_players; ++player) {
            const PlayerPlace place = report.team == default_list ? place_of(default_team_row, player).value()
                                                                  : place_of(report.team, player);
            report.players.emplace_back(row_of_place(place));
        }
    }

    SheetView names_;
    SheetView links_;
};

/// Reads how a team plays.
class TeamReader {
public:
    explicit TeamReader(const DiscBytes& disc)
        : formations_(disc, "formations"),
          bars_(disc, "bars"),
          numbers_(disc, "numbers"),
          set_pieces_(disc, "set_pieces") {}

    void read(ReportTeam& report) const {
        report.numbers = numbers_.cells(report.id);
        report.formation = formation_of(report.id);
        report.bars = bars_.cells(report.id);
        report.set_pieces = set_pieces_.cells(report.id);
    }

private:
    std::vector<ReportSpot> formation_of(std::string_view id) const {
        std::vector<ReportSpot> spots;
        const auto row = formations_.row_of(id);
        for (int player = 2; row && player < 2 + outfield_players; ++player) {
            const std::string number = std::to_string(player);
            spots.push_back({formations_.cell(formations_.column("role" + number), *row),
                             formations_.number(formations_.column("x" + number), *row),
                             formations_.number(formations_.column("y" + number), *row)});
        }
        return spots;
    }

    SheetView formations_;
    SheetView bars_;
    SheetView numbers_;
    SheetView set_pieces_;
};

void add_once(std::vector<Team>& clubs, Team club) {
    if (clubs.empty() || clubs.back() != club) clubs.push_back(club);
}

void tell_the_linked(Report& report) {
    for (const ReportTeam& club : report.teams) {
        if (!is_club(club.team)) continue;
        for (const auto& row : club.players) {
            if (!row) continue;
            ReportPlayer& player = report.players[static_cast<std::size_t>(*row)];
            add_once(player.clubs, club.team);
            add_once(report.teams[player.team.place()].clubs, club.team);
        }
    }
}

}  // namespace

Report read_rosters(const DiscBytes& disc) {
    Report report;
    const PlayerReader players(disc);
    report.players.reserve(static_cast<std::size_t>(players.rows()));
    for (int row = 0; row < players.rows(); ++row) report.players.push_back(players.read(row));
    const RosterReader rosters(disc);
    for (const Team team : every<Team>()) report.teams.push_back(rosters.read(team));
    tell_the_linked(report);
    return report;
}

Report read_report(const DiscBytes& disc) {
    Report report = read_rosters(disc);
    const TeamReader teams(disc);
    for (ReportTeam& team : report.teams) teams.read(team);
    return report;
}

}  // namespace kalco
