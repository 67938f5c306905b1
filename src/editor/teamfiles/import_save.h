#pragma once

#include "editor/window/frmKalco.h"

/// The save of an imported team: the whole roster, changed or not.
namespace kalco {

/// Fills the slots that the save button runs while an import is pending.
void connect_import_save(frmKalco& form);

/// Writes the lists over the team of cboSeqSQ; for a team without a roster of its own it only clears the flag.
void SALV_IMP(frmKalco& form);
/// The same steps for the teams behind the first 53.
void RoutLung2(frmKalco& form);
/// Writes the lists over the default Master League team's rows of the pool, whatever team is chosen.
void SAVE_IMP_ML(frmKalco& form);

}  // namespace kalco
