#include <array>
#include <string>

#include "ctl/demo/tables.h"
#include "disc/codec/latin1.h"
#include "disc/codec/letters.h"
#include "disc/team_names.h"

namespace kalco::demo {
namespace {

struct TeamRange {
    Team first;
    Team last;
};
constexpr Team last_club_team{default_list.value() - 1};
/// Within these the tables of capitals run downwards without other data between the entries.
constexpr std::array<TeamRange, 3> ranges{
    {{Team(0), Team(nation_count - 1)}, {Team(nation_count), last_roster_team}, {first_club_team, last_club_team}}};

std::string catalogue_name(Team team) {
    return std::string(team_facts[team.place()].row);
}

/// The first three letters of the row, capitals.
std::string short_name(Team team) {
    std::string letters = upper(catalogue_name(team));
    std::erase_if(letters, [](char letter) { return letter < 'A' || letter > 'Z'; });
    letters.resize(short_name_bytes);
    return letters;
}

/// As many letters of the row as the field holds once they are encoded.
std::string full_width_name(Team team, std::size_t bytes) {
    std::string name = catalogue_name(team);
    for (;;) {
        LetterEncoder encoder;
        std::string encoded = encoder.encode(name);
        if (encoded.size() <= bytes) return encoded;
        name.pop_back();
    }
}

std::string name_of(Team team, NamePlace place, std::size_t bytes) {
    if (place == NamePlace::short_name) return short_name(team);
    if (place == NamePlace::full_width) return full_width_name(team, bytes);
    return std::string(trim(left(upper(catalogue_name(team)), bytes)));
}

/// The names of some teams in one table, and zeroes between them. `behind` is what belongs to the highest entry.
void put_names(DemoDisc& disc, NamePlace place, TeamRange range, int behind) {
    const auto highest = name_field(range.first, place);
    const auto lowest = name_field(range.last, place);
    if (!highest || !lowest) return;
    disc.zero(user_offset_of(lowest->position()), user_offset_of(highest->position()) + highest->bytes() + behind);
    for (Team team = range.first; team <= range.last; ++team) {
        const Pieces field = *name_field(team, place);
        disc.put(field, name_of(team, place, static_cast<std::size_t>(field.bytes())));
    }
}

}  // namespace

void put_team_names(DemoDisc& disc) {
    put_names(disc, NamePlace::short_name, {Team(0), default_list}, 1);
    put_names(disc, NamePlace::full_width, {Team(0), last_club_team}, 2);
    for (const NamePlace place : name_places) {
        if (place < NamePlace::t1) continue;
        for (const TeamRange& range : ranges) put_names(disc, place, range, 1);
    }
}

}  // namespace kalco::demo
