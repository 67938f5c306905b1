#pragma once

#include "editor/window/frmKalco.h"

namespace kalco {

/// Attaches the handlers of the Master League: links and No-Contact players.
void connect_league(frmKalco& form);

}  // namespace kalco
