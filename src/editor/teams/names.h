#pragma once

#include "editor/window/frmKalco.h"

/// The three editable names of the team on the first tab, and their saving to every place where the game keeps them.
namespace kalco {

/// Fills the rows of cboSeqSQ and attaches the handlers of the team names.
void connect_teams(frmKalco& form);

/// Writes txtSqShort, txtSqHEX and txtSqDec for the team of cboSeqSQ. Shows no message and does not reopen the image.
/// Error 5 for the team with the split full-width name when the name has fewer than two letters.
void SAVE_NAME_SQ(frmKalco& form);

void cmdName_Click(frmKalco& form);
void txtSqHEX_Change(frmKalco& form);
void txtSqShort_Change(frmKalco& form);

}  // namespace kalco
