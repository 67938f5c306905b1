#pragma once

#include <array>
#include <string>

#include "disc/image/image.h"
#include "disc/teams.h"
#include "editor/window/frmKalco.h"

/// The eight name places of a Master League club. They are those of the catalogue's clubs, addressed by club 0..31.
namespace kalco {

/// The full-width name of a club; any other index leaves both as they were.
void Off_Name_ML(int club, ImagePos& position, int& length);

/// The six upper-case copies of a club's name, in the order of the name tables.
std::array<NameEntry, name_table_count> Call_Name_ML(int club);

constexpr ImagePos club_short_name_position(int club) {
    return short_name_position(first_club + club);
}

/// Shows the full-width name of the club of cboSqNC in lblNameML. Error 5 when it begins with a byte 0x20.
void NameSqML(frmKalco& form);

/// Renames the club of cboSqNC from the imported team's names.
void SAVE_NAME_ML(frmKalco& form);
/// Renames the club of listDefault from txtNmShML and txtNmLgML.
void SAVE_NAME_ML2(frmKalco& form);

}  // namespace kalco
