#pragma once

#include "disc/indexes.h"
#include "editor/window/frmKalco.h"

/// The save button of the first tab and the small buttons of the player's fields.
namespace kalco {

void connect_player_save(frmKalco& form);

/// Packs the fields; a second click while the button keeps the focus does not come here.
void cmdSaveCar_GotFocus(frmKalco& form);
/// Saves the player, or the whole team while an import is pending.
void cmdSaveCar_Click(frmKalco& form);

/// Writes txtML as the selected player's byte. Error 13 when it is no number, 6 when it is no byte.
void Costo_ML(frmKalco& form);

/// The save of one player for the teams behind the first 59 and for the pool.
void RoutLung(frmKalco& form);

void cmdSottH_Click(frmKalco& form);
void cmdAddH_Click(frmKalco& form);
void cmdSottEta_Click(frmKalco& form);
void cmdAddEta_Click(frmKalco& form);
void txtName_LostFocus(frmKalco& form);
void txtML_LostFocus(frmKalco& form);

/// The end that all saves of players share: the message, the reopening, the selection of the team again.
void finish_save(frmKalco& form, Team team, const std::string& what);

}  // namespace kalco
