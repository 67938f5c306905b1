#pragma once

#include "editor/window/frmKalco.h"

/// One team's bars and formation as one line of digits: bars, roles, X, Y.
namespace kalco {

void connect_bars_file(frmKalco& form);

/// The file that an export writes now. Error 52 when the team's name can't be a file's.
std::string bars_file_path(const frmKalco& form);

/// Writes what the tab shows, saved or not. Leaves SelectedMarker at the last marker. Error 52 when the team's name
/// can't be a file's.
void cmdExport_Click(frmKalco& form);
/// Writes bars, formation or both over the team's, as the user answers. Error 62 for an empty file.
void cmdImport_Click(frmKalco& form);

}  // namespace kalco
