#pragma once

#include "disc/image/position.h"
#include "editor/window/frmKalco.h"

/// The links of a club to the players it plays with.
namespace kalco {

/// The table's positions by the row of an 87-row list; the second one only where the table is split. Other rows leave
/// both as they were.
void LinKML(int row, ImagePos& position1, ImagePos& position2);

/// Fills listNameGiocNaz from the name table: the 1449 names of the rosters and the ten bytes behind them.
void NAMES_GIOC_NAZ(frmKalco& form);

/// Resolves the links of the club of the tab that is shown and puts the names where that tab shows them.
void NEW_NAME_ML(frmKalco& form);

void listSQLink_Click(frmKalco& form);
void cmdLink_Click(frmKalco& form);

/// Fills the fixed rows and attaches the handlers of the links.
void connect_links(frmKalco& form);

}  // namespace kalco
