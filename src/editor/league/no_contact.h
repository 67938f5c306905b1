#pragma once

#include "editor/window/frmKalco.h"

/// The players outside all rosters, and the making of a club out of 23 of them.
namespace kalco {

/// Fills the fixed rows and attaches the handlers of the frame.
void connect_no_contact(frmKalco& form);

/// Refills listNC from the image.
void NAME_NO_CONTACT(frmKalco& form);
/// Copies listNC to ListAppOrigName.
void CONTR_NAME_NC(frmKalco& form);
/// Shows the nationality of the row of listNC; an unknown code leaves the former text.
void NAZ_NC(frmKalco& form);
/// The link table's positions of the club of cboSqNC.
void OFF_ML_NC(const frmKalco& form, ImagePos& position1, ImagePos& position2);
/// Writes the names and records of the lists over the picked rows.
void SAVE_NC(frmKalco& form);

void cboSqNC_Click(frmKalco& form);
void listNC_Click(frmKalco& form);
void listNC_DblClick(frmKalco& form);
void listAppNameNC_DblClick(frmKalco& form);
void cmdImpNC_Click(frmKalco& form);
void cmdSaveNC_Click(frmKalco& form);
void cmdNuevo_Click(frmKalco& form);
void cmdHelp_Click(frmKalco& form);

}  // namespace kalco
