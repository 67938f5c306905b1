#pragma once

#include "editor/window/frmKalco.h"

namespace kalco {

/// Attaches the handlers of team files: export, import, the save of an import, transfers.
void connect_teamfiles(frmKalco& form);

}  // namespace kalco
