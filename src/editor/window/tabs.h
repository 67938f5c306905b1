#pragma once

#include "editor/window/frmKalco.h"

/// What entering a tab resets and loads.
namespace kalco {

void kicker_reset(frmKalco& form);
void number_reset(frmKalco& form);
void no_contact_reset(frmKalco& form);
void link_reset(frmKalco& form);

void SSTab1_Click(frmKalco& form);

}  // namespace kalco
