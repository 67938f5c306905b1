#pragma once

#include <QString>

#include "editor/window/frmKalco.h"

namespace kalco::app {

/// What a pending import waits for, and what the button would write; empty when there is none that a button would
/// write. It names the button of the shown tab, or else the tab too.
QString pending_text(const frmKalco& form);

}  // namespace kalco::app
