#include "disc/team_import.h"

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/players.h"

namespace kalco {
namespace {

constexpr RosterPlace late_split{Team(1), 21};

std::string_view row_of(std::span<const std::string> list, std::size_t row) {
    return row < list.size() ? std::string_view(list[row]) : std::string_view();
}

void write_pool_name(Image& image, PoolRow row, std::string_view name) {
    const Pieces field = pool_name_field(row);
    if (!field.split()) return write_player_name(image, row, name);
    image.clear(field);
    image.write(field, name);
}

}  // namespace

Pieces imported_record_field(RosterPlace place) {
    if (place.team == late_split.team) {
        const Pieces split = roster_record_field(late_split);
        if (place.player == late_split.player) return Piece{split.position(), player_record_bytes};
        if (place.player == late_split.player + 1) return split;
    }
    return roster_record_field(place);
}

void write_imported_team(Image& image, Team team, const ImportedPlayers& players) {
    for (int i = 0; i < roster_players; ++i) {
        write_player_name(image, RosterPlace{team, i}, row_of(players.names, static_cast<std::size_t>(i)));
    }
    // The counter runs one past the roster.
    for (int i = 0; i <= roster_players; ++i) {
        const std::string_view entry = row_of(players.entries, static_cast<std::size_t>(i));
        image.write(imported_record_field({team, i}), bytes_of_digits(without_blanks(entry)));
    }
}

void write_imported_default_team(Image& image, const ImportedPlayers& players) {
    for (std::size_t i = 0; i < DefaultSlots.size(); ++i) {
        write_player_name(image, DefaultSlots[i], row_of(players.names, i));
    }
    for (std::size_t i = 0; i < DefaultSlots.size(); ++i) {
        write_player_record(image, DefaultSlots[i], row_of(players.entries, i));
    }
}

void write_imported_pool_rows(Image& image, std::span<const PoolRow> rows, const ImportedPlayers& players) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        write_pool_name(image, rows[i], row_of(players.names, i));
        write_player_record(image, rows[i], row_of(players.entries, i));
    }
}

}  // namespace kalco
