#pragma once

#include "editor/window/frmKalco.h"

namespace kalco {

/// Attaches the handlers of set-piece takers and captains.
void connect_kickers(frmKalco& form);

}  // namespace kalco
