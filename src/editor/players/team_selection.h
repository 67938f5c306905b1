#pragma once

#include "disc/indexes.h"
#include "editor/window/frmKalco.h"

/// Choosing a team and a player on the first tab: the team's names and roster come out of the image into the window.
namespace kalco {

void connect_team_selection(frmKalco& form);

/// Reads the names and the roster of the team of cboSeqSQ. Saves run it again: it is the refresh of the tab. Error 5
/// when the team's full-width name begins with a byte 0x20.
void cboSeqSQ_Click(frmKalco& form);

/// Sets cboSeqSQ to a team and runs its click, once, also when the team is selected already.
void select_team(frmKalco& form, Team team);

/// Shows the player of listDat. Error 5 is told in a message and others are silent; the fields stay as far as they had
/// come.
void listDat_Click(frmKalco& form);

}  // namespace kalco
