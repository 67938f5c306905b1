#pragma once

#include "window/frmKalco.h"

/// What entering a tab resets and loads.
namespace kalco {

/// Rows of the 87-row team lists: the nations, the clubs and the default team.
inline constexpr int first_listless_team = 54;
inline constexpr int last_listless_team = 62;
inline constexpr int default_team_row = 86;
inline constexpr auto default_team_name = "Squadra Default ML";

void kicker_reset(frmKalco& form);
void number_reset(frmKalco& form);
void no_contact_reset(frmKalco& form);
void link_reset(frmKalco& form);

void SSTab1_Click(frmKalco& form);

}  // namespace kalco
