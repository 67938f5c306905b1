#include <algorithm>
#include <array>
#include <string>

#include "ctl/demo/tables.h"
#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"
#include "disc/teams.h"

namespace kalco::demo {
namespace {

struct TeamRange {
    int first;
    int last;
};
/// Within these the name tables run downwards without other data between the entries.
constexpr std::array<TeamRange, 3> ranges{
    {{0, nation_count - 1}, {nation_count, roster_team_count - 1}, {first_club, last_club}}};

std::string row_of(int team) {
    return std::string(team_facts[static_cast<std::size_t>(team)].row);
}

/// The first three letters of the row, capitals.
std::string short_name(int team) {
    std::string letters = upper(row_of(team));
    std::erase_if(letters, [](char letter) { return letter < 'A' || letter > 'Z'; });
    letters.resize(short_name_bytes);
    return letters;
}

/// As many letters of the row as the field holds once they are encoded.
std::string full_width_name(int team, int bytes) {
    std::string name = row_of(team);
    for (;;) {
        LetterEncoder encoder;
        std::string encoded = encoder.encode(name);
        if (encoded.size() <= static_cast<std::size_t>(bytes)) return encoded;
        name.pop_back();
    }
}

std::string table_name(int team, int length) {
    const std::string capitals = upper(row_of(team));
    return std::string(trim(left(capitals, static_cast<std::size_t>(length))));
}

void put_short_names(DemoDisc& disc) {
    disc.zero(user_offset_of(short_name_position(team_count - 1)),
              user_offset_of(short_name_position(0)) + short_name_bytes + 1);
    for (int team = 0; team < team_count; ++team) {
        disc.put(Piece{short_name_position(team), short_name_bytes}, short_name(team));
    }
}

void put_full_width_names(DemoDisc& disc) {
    const NameEntry highest = *Off_Name_HEX(0);
    disc.zero(user_offset_of(Off_Name_HEX(last_club)->position), user_offset_of(highest.position) + highest.length + 2);
    for (int team = 0; team <= last_club; ++team) {
        const auto entry = Off_Name_HEX(team);
        const Pieces field = entry ? Pieces(Piece{entry->position, entry->length}) : split_full_width_name;
        disc.put(field, full_width_name(team, field.bytes()));
    }
}

void put_table_names(DemoDisc& disc, std::size_t table) {
    for (const TeamRange& range : ranges) {
        const auto highest = Call_Name(range.first)[table];
        const auto lowest = Call_Name(range.last)[table];
        if (!highest || !lowest) continue;
        disc.zero(user_offset_of(lowest->position), user_offset_of(highest->position) + highest->length + 1);
        for (int team = range.first; team <= range.last; ++team) {
            const NameEntry entry = *Call_Name(team)[table];
            const bool split = table == 1 && team == split_t2_team;
            disc.put(split ? split_t2_name : Pieces(Piece{entry.position, entry.length}),
                     table_name(team, entry.length));
        }
    }
}

}  // namespace

void put_team_names(DemoDisc& disc) {
    put_short_names(disc);
    put_full_width_names(disc);
    for (std::size_t table = 0; table < name_table_count; ++table) put_table_names(disc, table);
}

}  // namespace kalco::demo
