#pragma once

#include "editor/window/frmKalco.h"

/// Start-up, opening another image, the resets of the first tab and the tab changes.
namespace kalco {

/// Attaches the handlers of the window itself.
void connect_window(frmKalco& form);

/// Start-up. A cancelled dialog and error 70 end the run; any other error leaves the window without what follows.
void Form_Load(frmKalco& form);
void cmdOpen_Click(frmKalco& form);
void cmdNew_Click(frmKalco& form);
/// Fills the three lists of the start from the image.
void read_lookup_lists(frmKalco& form);
/// Empties the player fields without touching the other tabs.
void Clear_Frame(frmKalco& form);

}  // namespace kalco
