#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "disc/image/image.h"
#include "disc/indexes.h"

/// The strength bars: five bytes a team, one for each bar.
namespace kalco {

inline constexpr int bar_count = 5;
/// Rows 0..85 have bars; the default team, the last row, has none.
inline constexpr int bar_teams = default_team_row.value();
/// Records of all teams lie one behind the other in the order of cboSeqSQ; those of the teams without a row in the list
/// of 87 stay untouched.
inline constexpr UserOffset BarsBase = user_offset_of(2328185);

/// The stored bytes. The window shows 0..10; nothing on the disc keeps to that.
using Bars = std::array<std::uint8_t, bar_count>;

constexpr bool has_bars(TeamRow row) {
    return row.exists() && row != default_team_row;
}
/// The record of a row that has bars.
Pieces bars_field(TeamRow row);

/// The bars of a record of 5 bytes; missing ones are 0.
Bars unpack_bars(std::string_view record);
std::string pack_bars(const Bars& bars);

Bars read_bars(const Image& image, TeamRow row);
/// Writes the bytes over a row's record; as many as there are.
void write_bars(Image& image, TeamRow row, std::string_view bytes);

}  // namespace kalco
