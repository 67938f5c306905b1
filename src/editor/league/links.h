#pragma once

#include "editor/window/frmKalco.h"

/// Linking a club to the players of a team, and the names that links are shown with.
namespace kalco {

/// Fills listNameGiocNaz from the name table: the 1449 names of the rosters and the ten bytes behind them.
void NAMES_GIOC_NAZ(frmKalco& form);

void listSQLink_Click(frmKalco& form);
void cmdLink_Click(frmKalco& form);

/// Fills the fixed rows and attaches the handlers of the links.
void connect_links(frmKalco& form);

}  // namespace kalco
