#pragma once

#include <string>
#include <string_view>

#include "disc/image/position.h"
#include "editor/window/frmKalco.h"

/// The strength bars: 5 bytes a team. A hidden list of all teams' rows, not the image, is what the tab shows and edits.
namespace kalco {

inline constexpr int bar_count = 5;
/// Rows of the list of 87 that have bars; the default team has none.
inline constexpr int bar_teams = 86;
/// Records of all teams lie one behind the other in the order of cboSeqSQ.
inline constexpr UserOffset BarsBase = user_offset_of(2328185);

/// The record of a row 0..85.
Pieces bars_field(int row);
/// Writes the bytes of digits over a row's record; as many as there are.
void write_bars(Image& image, int row, std::string_view digits);

void connect_bars(frmKalco& form);

/// Appends the rows of all teams to listApp2.
void Read_Bar(frmKalco& form);
/// Shows the bars of the team of cboSeqSQ2, or none.
void show_bars(frmKalco& form);

void cmdMeno_Click(frmKalco& form, int bar);
void cmdPiu_Click(frmKalco& form, int bar);
void cmdSalva_Click(frmKalco& form);

}  // namespace kalco
