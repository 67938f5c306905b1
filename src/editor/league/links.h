#pragma once

#include <array>
#include <string>
#include <vector>

#include "disc/image/position.h"
#include "disc/roster.h"
#include "disc/teams.h"
#include "editor/window/frmKalco.h"

/// The links of a club to the players it plays with: a table of 23 codes of two bytes.
namespace kalco {

inline constexpr int link_bytes = 2;
inline constexpr int link_table_bytes = roster_players * link_bytes;
inline constexpr UserOffset LinkTableBase = 1752784;

/// The link table of club 0..31.
constexpr Pieces link_table_field(int club) {
    return field_at(LinkTableBase + link_table_bytes * club, link_table_bytes);
}

/// The table's positions by the row of an 87-row list; the second one only where the table is split. Other rows leave
/// both as they were.
void LinKML(int row, ImagePos& position1, ImagePos& position2);

/// Writes the digits of a link table over a club's.
void write_link_table(Image& image, int club, std::string_view digits);

/// The digits of the links to the 23 players of a team.
std::string links_to_team(int team);

/// Fills listNameGiocNaz from the name table: the 1449 names of the rosters and the ten bytes behind them.
void NAMES_GIOC_NAZ(frmKalco& form);

/// Resolves the links of the club of the tab that is shown and puts the names where that tab shows them.
void NEW_NAME_ML(frmKalco& form);

void listSQLink_Click(frmKalco& form);
void cmdLink_Click(frmKalco& form);

/// Fills the fixed rows and attaches the handlers of the links.
void connect_links(frmKalco& form);

}  // namespace kalco
