#pragma once

#include "editor/window/frmKalco.h"

/// The names of a Master League club: its long name is shown, and both frames of the tab rename it.
namespace kalco {

/// Shows the full-width name of the club of cboSqNC in lblNameML. Error 5 when it begins with a byte 0x20.
void NameSqML(frmKalco& form);

/// Renames the club of cboSqNC from the imported team's names.
void SAVE_NAME_ML(frmKalco& form);
/// Renames the club of listDefault from txtNmShML and txtNmLgML.
void SAVE_NAME_ML2(frmKalco& form);

}  // namespace kalco
