#pragma once

#include "editor/window/frmKalco.h"

/// The strength bars. A hidden list of all teams' rows, not the image, is what the tab shows and edits.
namespace kalco {

void connect_bars(frmKalco& form);

/// Appends the rows of all teams to listApp2.
void Read_Bar(frmKalco& form);
/// Shows the bars of the team of cboSeqSQ2, or none.
void show_bars(frmKalco& form);

void cmdMeno_Click(frmKalco& form, int bar);
void cmdPiu_Click(frmKalco& form, int bar);
void cmdSalva_Click(frmKalco& form);

}  // namespace kalco
