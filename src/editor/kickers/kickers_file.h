#pragma once

#include "editor/window/frmKalco.h"

/// The six bytes of a team's set pieces as one line of digits. A file that can't be read or written is told in a
/// message and nothing else happens.
namespace kalco {

void connect_kickers_file(frmKalco& form);

/// The file that an export writes now. Error 52 when the team's name can't be a file's.
std::string kickers_file_path(const frmKalco& form);

/// Writes what was last read from the image or saved to it.
void cmdExpKick_Click(frmKalco& form);
/// Writes half as many bytes as the first line has digits over the team's record.
void cmdImpKick_Click(frmKalco& form);

}  // namespace kalco
