#include <algorithm>

#include "codec/hextext.h"
#include "ctl/demo/tables.h"
#include "formations/bars.h"
#include "formations/formation_facts.h"
#include "league/links.h"

namespace kalco::demo {
namespace {

/// By team of cboSeqSQ, without the default list.
const Squad& squad_of(const World& world, int team) {
    return is_club(team) ? world.clubs[static_cast<std::size_t>(team - first_club)].squad
                         : world.squads[static_cast<std::size_t>(team)];
}

std::string formation_of(const Squad& squad, Random& random) {
    std::string x = bytes_of_digits(squad.module->x);
    std::string y = bytes_of_digits(squad.module->y);
    if (random.chance(40)) {
        for (char& value : x) value = static_cast<char>(value + random.between(-1, 2));
        for (char& value : y) value = static_cast<char>(value + random.between(-3, 3));
    }
    return bytes_of_digits(squad.module->roles) + x + y;
}

}  // namespace

void put_links(DemoDisc& disc, const World& world) {
    for (int number = 0; number < club_count; ++number) {
        std::string digits;
        for (const std::string& code : world.clubs[static_cast<std::size_t>(number)].codes) digits += code;
        disc.put(link_table_field(number), bytes_of_digits(digits));
    }
}

void put_formations(DemoDisc& disc, const World& world, Random& random) {
    for (int team = 0; team <= last_club; ++team) {
        disc.put(field_at(FormationBase + formation_bytes * team, formation_bytes),
                 formation_of(squad_of(world, team), random));
    }
    disc.put(formation_field(default_row), formation_of(world.default_team, random));
}

void put_bars(DemoDisc& disc, const World& world, Random& random) {
    constexpr int lowest = 3;
    constexpr int highest = 9;
    for (int team = 0; team <= last_club; ++team) {
        std::string bars;
        for (int bar = 0; bar < bar_count; ++bar) {
            const int value = 4 + squad_of(world, team).strength + random.between(-1, 1);
            bars += static_cast<char>(std::clamp(value, lowest, highest));
        }
        disc.put(field_at(BarsBase + bar_count * team, bar_count), bars);
    }
}

}  // namespace kalco::demo
