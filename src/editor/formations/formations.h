#pragma once

#include "editor/window/frmKalco.h"

namespace kalco {

/// Attaches the handlers of formations, strength bars and their file.
void connect_formations(frmKalco& form);

}  // namespace kalco
