#include "disc/formation.h"

#include <algorithm>

#include "disc/codec/hextext.h"
#include "disc/teams.h"

namespace kalco {
namespace {

/// n / d, halves to the even neighbour; both positive.
constexpr int rounded_to_even(int n, int d) {
    const int whole = n / d;
    const int twice_rest = 2 * (n % d);
    if (twice_rest == d) return whole + whole % 2;
    return twice_rest > d ? whole + 1 : whole;
}

}  // namespace

Pieces formation_field(int row) {
    if (row == default_row) return Piece{default_team_formation, formation_bytes};
    return field_at(FormationBase + formation_bytes * team_of_row(row), formation_bytes);
}

std::string_view role_label(std::string_view code) {
    for (std::size_t i = 0; i < role_labels.size(); ++i) {
        if (hex_number(first_role_code + static_cast<int>(i), 2) == code) return role_labels[i];
    }
    return unknown_role_label;
}

std::string role_code(std::string_view label) {
    const auto* const found = std::find(role_labels.begin(), role_labels.end(), label);
    if (found == role_labels.end()) return {};
    return hex_number(first_role_code + (found - role_labels.begin()), 2);
}

int screen_left(int x) {
    return rounded_to_even(x * pitch_width, pitch_x_steps);
}

int screen_top(int y) {
    return rounded_to_even(y * pitch_height, pitch_y_steps);
}

const ModuleRow* module_named(std::string_view name) {
    const auto* const found =
        std::find_if(module_rows.begin(), module_rows.end(), [&](const ModuleRow& row) { return row.name == name; });
    return found == module_rows.end() ? nullptr : found;
}

}  // namespace kalco
