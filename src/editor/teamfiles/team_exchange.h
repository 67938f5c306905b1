#pragma once

#include "editor/window/frmKalco.h"

/// Export and import of a team on the first tab. An import fills the lists; nothing of it reaches the image before the
/// next save.
namespace kalco {

void connect_team_exchange(frmKalco& form);

/// The file that an export writes now. Error 52 when the team's name can't be a file's.
std::string exported_team_path(const frmKalco& form);

/// Writes the roster of the lists. Error 52 when the team's name can't be a file's; 5 for fewer than 23 players, after
/// the file was opened.
void cmdExp_Click(frmKalco& form);
/// Reads a file into the lists. Errors 5, 6, 13 and 380 for lines that are no player's and for no player at all.
void cmdImp_Click(frmKalco& form);
void cmdImpML_Click(frmKalco& form);

/// Adds the entry of Text1 to Text3 to listApp. Errors as for groups_of_words.
void Conv_PARAM(frmKalco& form);

}  // namespace kalco
