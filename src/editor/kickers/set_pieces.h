#pragma once

#include "disc/set_pieces.h"
#include "editor/window/frmKalco.h"

/// The set-piece takers and the captain of the team chosen in cboSquadra.
namespace kalco {

/// The two digits of a pick.
std::string pick_digits(int row);

void connect_set_pieces(frmKalco& form);

void cboSquadra_Click(frmKalco& form);
/// Shows the picks of txtHex. A byte above 10 names no button: it leaves its column without a selected one, and stays
/// the column's pick.
void CAP_KICK(frmKalco& form);
void cmdCrea_Click(frmKalco& form);

}  // namespace kalco
