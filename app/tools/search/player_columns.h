#pragma once

#include "disc/player_facts.h"

/// The columns of the search's table: the name with tick and portrait, facts, the sixteen skills, the cost.
namespace kalco::app::player_column {

enum Column : int {
    name,
    team,
    role,
    age,
    height,
    foot,
    first_skill,
    cost = first_skill + static_cast<int>(skill_count),
    count,
};

constexpr bool is_skill(int column) {
    return column >= first_skill && column < cost;
}

}  // namespace kalco::app::player_column
