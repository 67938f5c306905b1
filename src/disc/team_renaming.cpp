#include "disc/team_renaming.h"

#include <array>

#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"
#include "disc/team_names.h"

namespace kalco {
namespace {

/// The order in which the game's copies of a name are written.
constexpr std::array<NamePlace, name_table_count> table_order{NamePlace::t1, NamePlace::t2, NamePlace::t3,
                                                              NamePlace::t5, NamePlace::t4, NamePlace::t6};

/// The last club's full-width name ends its table: it is cleared with one byte more than it has.
constexpr Club last_club{Club::count - 1};
constexpr std::size_t last_club_cleared_bytes = 11;

void write_short_name(Image& image, Team team, std::string_view name) {
    image.write(short_name_position(team), upper(name));
}

void clear_end_of_table(Image& image, Team team) {
    if (club_of(team) != last_club) return;
    image.write(name_field(team, NamePlace::full_width)->position(), zero_bytes(last_club_cleared_bytes));
}

struct FullWidthText {
    std::string_view fill;  ///< Goes over the old name before the new one.
    std::string_view coded;
};

/// Of a split field only the second piece is filled.
void write_full_width_name(Image& image, const Pieces& field, const FullWidthText& text) {
    if (!field.split()) {
        image.write(field.position(), text.fill);
        image.write(field.position(), text.coded);
        return;
    }
    const auto first_bytes = static_cast<std::size_t>(field[0].bytes);
    image.write(field[0].position, left(text.coded, first_bytes));
    image.write(field[1].position, right(text.fill, static_cast<std::size_t>(field[1].bytes)));
    if (text.coded.size() < first_bytes) throw RuntimeError(error::invalid_call);
    image.write(field[1].position, text.coded.substr(first_bytes));
}

/// Zeroes over the field, then as much of the name as it holds.
void write_table_name(Image& image, const Pieces& field, std::string_view name) {
    for (const Piece& piece : field) {
        const auto length = static_cast<std::size_t>(piece.bytes);
        image.write(piece.position, zero_bytes(length));
        image.write(piece.position, left(name, length));
        name = mid(name, length + 1);
    }
}

void write_table_names(Image& image, Team team, std::string_view name) {
    const std::string capitals = upper(name);
    for (const NamePlace table : table_order) {
        if (const auto field = name_field(team, table)) write_table_name(image, *field, capitals);
    }
}

/// What is written over a team's old full-width name before the new one.
std::string full_width_fill(Team team, std::string_view shown_name, std::string_view new_name) {
    if (trim(new_name).size() < trim(shown_name).size()) return zero_bytes(2 * shown_name.size());
    return club_of(team) == last_club ? zero_bytes(last_club_cleared_bytes) : std::string();
}

}  // namespace

void rename_team(Image& image, LetterEncoder& encoder, Team team, const NewNames& names, std::string_view shown_name) {
    write_short_name(image, team, names.short_name);
    clear_end_of_table(image, team);
    if (const auto field = name_field(team, NamePlace::full_width)) {
        const std::string coded = encoder.encode(names.full_width);
        const std::string fill = full_width_fill(team, shown_name, names.full_width);
        write_full_width_name(image, *field, {fill, trim(coded)});
    }
    write_table_names(image, team, names.table_name);
}

void rename_club(Image& image, LetterEncoder& encoder, Club club, const NewNames& names,
                 std::optional<std::string_view> shown_name) {
    const Team team = team_of(club);
    write_short_name(image, team, names.short_name);
    clear_end_of_table(image, team);
    const Pieces field = *name_field(team, NamePlace::full_width);
    const auto letters = static_cast<std::size_t>(field.bytes() / 2);
    const std::string_view cut = trim(left(names.full_width, letters));
    std::string fill;
    if (!shown_name) fill = zero_bytes(2 * letters);
    if (shown_name && cut.size() < shown_name->size()) fill = zero_bytes(2 * shown_name->size());
    write_full_width_name(image, field, {fill, encoder.encode(cut)});
    write_table_names(image, team, names.table_name);
}

}  // namespace kalco
