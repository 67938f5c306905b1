#pragma once

#include "editor/window/frmKalco.h"

namespace kalco {

/// Attaches the handlers of teams and players on the first tab.
void connect_players(frmKalco& form);

}  // namespace kalco
