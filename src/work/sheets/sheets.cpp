#include "work/sheets/sheets.h"

#include <algorithm>
#include <set>

#include "disc/formation_facts.h"
#include "disc/player_facts.h"
#include "disc/roster.h"
#include "work/sheets/ids.h"
#include "work/sheets/places.h"

namespace kalco {
namespace {

using Place = decltype(Field::place);

constexpr Field text(std::string_view name, Place place) {
    return {name, FieldKind::text, 0, place};
}
/// Numbers lowest..highest. What a stored 0 means is the lowest one unless told otherwise.
constexpr Field number(std::string_view name, Place place, int lowest, int highest) {
    return {name, FieldKind::number, lowest, place, lowest, highest};
}
constexpr Field number_from(int base, Field field) {
    field.base = base;
    return field;
}
constexpr Field choice(std::string_view name, Place place, std::span<const std::string_view> choices, int base = 0) {
    return {name, FieldKind::choice, base, place, 0, 0, choices};
}
constexpr Field skill(std::string_view name, Place place) {
    return number(name, place, lowest_skill, highest_skill);
}
/// The columns name<first> .. name<last>.
constexpr Field run(int first, int last, Field field) {
    field.first = first;
    field.last = last;
    return field;
}

constexpr std::array<std::string_view, 2> no_and_yes{out_of_role_texts[1], out_of_role_texts[0]};

constexpr Field player_fields[]{
    {"team", FieldKind::team},
    {"rev", FieldKind::revision},
    text("name", player_name_place),
    choice("role", record_place<role_bits>, role_texts),
    choice("out_of_role", record_place<out_of_role_bits>, no_and_yes),
    choice("hair_style", record_place<hair_style_bits>, hair_style_texts),
    choice("hair_colour", record_place<hair_colour_bits>, hair_colour_texts),
    choice("beard_style", record_place<beard_style_bits>, beard_texts),
    choice("beard_colour", record_place<beard_colour_bits>, beard_texts),
    number_from(lowest_stored_height, number("height", record_place<height_bits>, lowest_height, highest_height)),
    number("number", record_place<number_bits>, 1, 32),
    choice("skin", record_place<skin_bits>, skin_texts),
    choice("build", record_place<build_bits>, build_texts),
    number("age", record_place<age_bits>, lowest_age, highest_age),
    choice("boots", record_place<boots_bits>, boots_texts),
    choice("foot", record_place<foot_bits>, foot_texts),
    skill("attack", skill_place<Skill::attack>),
    skill("defence", skill_place<Skill::defence>),
    skill("balance", skill_place<Skill::balance>),
    skill("stamina", skill_place<Skill::stamina>),
    skill("speed", skill_place<Skill::speed>),
    skill("acceleration", skill_place<Skill::acceleration>),
    skill("passing", skill_place<Skill::passing>),
    skill("shot_power", skill_place<Skill::shot_power>),
    skill("shot_accuracy", skill_place<Skill::shot_accuracy>),
    skill("jump", skill_place<Skill::jump>),
    skill("heading", skill_place<Skill::heading>),
    skill("technique", skill_place<Skill::technique>),
    skill("dribbling", skill_place<Skill::dribbling>),
    skill("curve", skill_place<Skill::curve>),
    skill("positivity", skill_place<Skill::positivity>),
    skill("reaction", skill_place<Skill::reaction>),
    number("cost", cost_place, 0, highest_cost),
};

constexpr Field team_fields[]{
    text("short", team_name_place<NamePlace::short_name>),
    {"full", FieldKind::wide_text, 0, team_name_place<NamePlace::full_width>},
    run(1, name_table_count, text("t", table_name_place)),
};

constexpr Field formation_fields[]{
    run(2, 11, choice("role", formation_place<0>, role_labels, first_role_code)),
    run(2, 11, number("x", formation_place<1>, 0, 255)),
    run(2, 11, number("y", formation_place<2>, 0, 255)),
};

constexpr Field bar_fields[]{
    number("offense", bar_place<0>, 0, 10),   number("defense", bar_place<1>, 0, 10),
    number("power", bar_place<2>, 0, 10),     number("speed", bar_place<3>, 0, 10),
    number("technique", bar_place<4>, 0, 10),
};

constexpr Field number_fields[]{
    run(1, roster_players, number("n", shirt_number_place, 1, 99)),
};

constexpr Field set_piece_fields[]{
    number("short_free_kick", set_piece_place<0>, 1, 11), number("long_free_kick", set_piece_place<1>, 1, 11),
    number("corner_right", set_piece_place<2>, 1, 11),    number("corner_left", set_piece_place<3>, 1, 11),
    number("penalty", set_piece_place<4>, 1, 11),         number("captain", set_piece_place<5>, 1, 11),
};

constexpr Field link_fields[]{
    run(1, roster_players, {"s", FieldKind::link, 0, link_place}),
};

std::string id_of_player(int row) {
    return player_id(place_of_row(row));
}
std::string id_of_team(int team) {
    return team_id(Team(team));
}
std::string id_of_row(int row) {
    return team_id(team_of(TeamRow(row)));
}
std::string id_of_club(int club) {
    return club_id(Club(club));
}

std::optional<int> named_player(std::string_view id) {
    const auto place = player_of_id(id);
    return place ? std::optional(row_of_place(*place)) : std::nullopt;
}
/// The row of an id in a sheet that has the teams from 0 up.
template <int rows>
std::optional<int> named_team(std::string_view id) {
    const auto team = team_of_id(id);
    return team && team->value() < rows ? std::optional(team->value()) : std::nullopt;
}
/// In one that has the list of 87, or its first rows.
template <int rows>
std::optional<int> named_row(std::string_view id) {
    const auto team = team_of_id(id);
    const auto row = team ? row_of(*team) : std::nullopt;
    return row && row->value() < rows ? std::optional(row->value()) : std::nullopt;
}
std::optional<int> named_club(std::string_view id) {
    const auto club = club_of_id(id);
    return club ? std::optional(club->value()) : std::nullopt;
}

std::vector<SheetColumn> columns_of(std::span<const Field> fields) {
    std::vector<SheetColumn> columns;
    for (const Field& field : fields) {
        for (int item = 0; item < field.columns(); ++item) {
            const std::string suffix = field.last > 0 ? std::to_string(field.first + item) : std::string();
            columns.push_back({std::string(field.name) + suffix, &field, item});
        }
    }
    return columns;
}

constexpr int row_count = TeamRow::count;

std::vector<int> sectors_of_fields() {
    std::set<int> sectors;
    int last = -1;
    for (const Sheet& sheet : sheets()) {
        for (const SheetColumn& column : sheet.columns) {
            for (int row = 0; row < sheet.rows; ++row) {
                const auto place = column.place(row);
                if (!place) continue;
                for (const Piece& piece : place->bytes) {
                    const auto sector = static_cast<int>((piece.position - 1) / sector_bytes);
                    if (sector != last) sectors.insert(sector);
                    last = sector;
                }
            }
        }
    }
    return {sectors.begin(), sectors.end()};
}

}  // namespace

const SheetColumn* Sheet::column_named(std::string_view column) const {
    const auto found =
        std::find_if(columns.begin(), columns.end(), [&](const SheetColumn& each) { return each.name == column; });
    return found == columns.end() ? nullptr : &*found;
}

std::span<const Sheet> sheets() {
    static const std::array<Sheet, 7> all{{
        {players_sheet, player_rows, id_of_player, named_player, columns_of(player_fields)},
        {"teams", Team::count - 1, id_of_team, named_team<Team::count - 1>, columns_of(team_fields)},
        {"formations", row_count, id_of_row, named_row<row_count>, columns_of(formation_fields)},
        {"bars", bar_teams, id_of_row, named_row<bar_teams>, columns_of(bar_fields)},
        {"numbers", row_count, id_of_row, named_row<row_count>, columns_of(number_fields)},
        {"set_pieces", row_count, id_of_row, named_row<row_count>, columns_of(set_piece_fields)},
        {"links", Club::count, id_of_club, named_club, columns_of(link_fields)},
    }};
    return all;
}

const Sheet* sheet_named(std::string_view name) {
    const auto all = sheets();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Sheet& sheet) { return sheet.name == name; });
    return found == all.end() ? nullptr : &*found;
}

std::span<const int> sheet_sectors() {
    static const std::vector<int> sectors = sectors_of_fields();
    return sectors;
}

DiscBytes read_sheets(const Image& image) {
    return {[&image](ImagePos position, int bytes) { return image.read(position, bytes); }, sheet_sectors()};
}

}  // namespace kalco
