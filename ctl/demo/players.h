#pragma once

#include <array>
#include <string>

#include "ctl/demo/invented_names.h"
#include "ctl/demo/random.h"
#include "disc/player_record.h"
#include "disc/roster.h"

namespace kalco::demo {

/// The stored values of the role field.
enum class Role { goalkeeper, centre_back, full_back, midfielder, wide_midfielder, playmaker, striker, winger };

struct Player {
    std::string name;
    PlayerValues values;

    /// The record as it stands in the image.
    std::string record() const;
    /// Costo ML, 1 to 250: what the skills are worth, less for those beyond their best age.
    int cost() const;
};

/// The roles of a squad in roster order: those of the ten field players of a formation behind a goalkeeper, then the
/// reserves.
using Roles = std::array<Role, roster_players>;
Roles squad_roles(const std::array<Role, 10>& field_players, Random& random);

/// A player with skills that fit his role. `strength` is 0 for a weak team to 4 for a strong one, `number` his shirt
/// number, 1 to 32.
Player make_player(Sound sound, int strength, Role role, int number, Random& random);

/// 23 different shirt numbers from 1 to `highest`, the goalkeeper's first.
std::array<int, roster_players> make_numbers(int highest, Random& random);

}  // namespace kalco::demo
