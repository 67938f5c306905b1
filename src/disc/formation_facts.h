#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "disc/image/position.h"

/// The formation record: 30 bytes in three columns of ten (roles, X, Y), one byte for each outfield player.
namespace kalco {

inline constexpr int outfield_players = 10;
inline constexpr int formation_bytes = 3 * outfield_players;

/// X runs from the own goal to the other one in 48 steps, Y across the pitch in 112; the screen has form units.
inline constexpr int pitch_x_steps = 48;
inline constexpr int pitch_y_steps = 112;
inline constexpr int pitch_width = 4920;
inline constexpr int pitch_height = 3480;

/// One press of an arrow: a step of the value, this many form units on the screen, while the marker stands inside the
/// limits.
inline constexpr int arrow_step_x = 102;
inline constexpr int arrow_step_y = 31;
inline constexpr int least_left = 102;
inline constexpr int most_left = 4819;
inline constexpr int least_top = 31;
inline constexpr int most_top = 3379;

/// The code of the first role; the labels follow in the order of the codes.
inline constexpr int first_role_code = 2;
inline constexpr std::array<std::string_view, 20> role_labels{
    "DC SX", "DC",    "SW",    "LIB", "DC DX", "TER SX", "TER DX", "CC SX", "CC",    "CC DX",
    "CL SX", "CL DX", "CO SX", "CO",  "CO DX", "CA SX",  "CA",     "CA DX", "AL SX", "AL DX"};
/// What a code outside the table shows.
inline constexpr std::string_view unknown_role_label = "???";

/// A ready-made formation: three columns of ten bytes as digits.
struct ModuleRow {
    std::string_view name;
    std::string_view roles;
    std::string_view x;
    std::string_view y;
};

inline constexpr std::array<ModuleRow, 16> module_rows{{
    {"4-5-1A", "020607080A0C0D0E1012", "09090B0B121A1A22222B", "293F1355341D4B284034"},
    {"4-5-1B", "02060708090B0C0D0F12", "09090B0B12121A1A222B", "293F13552B3D1D4B3434"},
    {"4-4-2A", "020607080A0C0D0F1113", "09090B0B121A1A222B2B", "293F1355341D4B342640"},
    {"4-4-2B", "02060708090B0C0D1113", "09090B0B12121E1E2B2B", "293F13552B3D1C502640"},
    {"4-3-3A", "020607080A0E10121415", "09090B0B121E1E2B2B2B", "293F1355342840342048"},
    {"4-3-3B", "02060708090B0F121415", "09090B0B12121E2B2B2B", "293F1355284034342048"},
    {"3-6-1A", "0203060A0C0D0F0E1012", "090909121A1A1A22222C", "203648341B4D34284036"},
    {"3-6-1B", "020306090B0C0D0E1012", "09090912121A1A22222C", "2434482B3D1B4D284036"},
    {"3-5-2A", "0203060A0C0D0E101113", "090909121A1A22222B2B", "243448341D4B28402642"},
    {"3-5-2B", "020306090B0C0D0F1113", "09090912121A1A222B2B", "2434482B3D1D4B342642"},
    {"3-4-3A", "0203060A0C0D0F121415", "090909121A1A222B2B2B", "243648341D4B34342048"},
    {"3-4-3B", "020306090B0C0D121415", "09090912121E1E2B2B2B", "2436482B3D1C50342048"},
    {"5-4-1A", "02030607080A0C0D0F12", "0909090C0C121A1A222C", "2034481157341D4B3436"},
    {"5-4-1B", "0203060708090B0C0D12", "0909090C0C12121E1E2C", "20344811572B3D1C5036"},
    {"5-3-2A", "02030607080A0E101113", "0909090C0C121E1E2B2B", "20344811573428402642"},
    {"5-3-2B", "0203060708090B0F1113", "0909090C0C12121E2B2B", "20344811572840342642"},
}};

/// Records of all teams lie one behind the other in the order of cboSeqSQ; those of the teams without a row in the list
/// of 87 stay untouched. The default team's record stands two bytes past its place.
inline constexpr UserOffset FormationBase = user_offset_of(2303701);
inline constexpr ImagePos default_team_formation = 2306857;

}  // namespace kalco
