#include "disc/formation.h"

#include <algorithm>

#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"

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

Pieces formation_field(TeamRow row) {
    if (row == default_team_row) return Piece{default_team_formation, formation_bytes};
    return field_at(FormationBase + formation_bytes * team_of(row).value(), formation_bytes);
}

Formation unpack_formation(std::string_view record) {
    Formation formation;
    for (Formation::Column* column : {&formation.roles, &formation.x, &formation.y}) {
        const std::size_t taken = std::min(record.size(), column->size());
        std::copy_n(record.begin(), taken, column->begin());
        record.remove_prefix(taken);
    }
    return formation;
}

std::string pack_formation(const Formation& formation) {
    std::string record;
    for (const Formation::Column& column : {formation.roles, formation.x, formation.y}) {
        record.append(column.begin(), column.end());
    }
    return record;
}

Formation read_formation(const Image& image, TeamRow row) {
    return unpack_formation(image.read(formation_field(row)));
}

void write_formation(Image& image, TeamRow row, std::string_view bytes) {
    const Pieces field = formation_field(row);
    if (!field.split()) return image.write(field.position(), bytes);
    image.write(field[0].position, left(bytes, static_cast<std::size_t>(field[0].bytes)));
    image.write(field[1].position, right(bytes, static_cast<std::size_t>(field[1].bytes)));
}

std::string_view role_label(std::uint8_t role) {
    const auto place = static_cast<std::size_t>(role - first_role_code);
    return role >= first_role_code && place < role_labels.size() ? role_labels[place] : unknown_role_label;
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
