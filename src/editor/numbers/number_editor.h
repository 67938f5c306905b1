#pragma once

#include "editor/window/frmKalco.h"

/// The shirt numbers of the team chosen in cboSQNum: names beside numbers, the board of numbers in use, the side file.
namespace kalco {

/// Attaches the handlers of the tab.
void connect_numbers(frmKalco& form);

/// The file that an export writes now. Error 52 when the team's name can't be a file's.
std::string numbers_file_path(const frmKalco& form);

/// Reads the team's name, its players and their numbers. A club with a number above 99 is refused: no row is chosen.
void cboSQNum_Click(frmKalco& form);
void NAME_NATIONAL(frmKalco& form);
/// The names of a nation or of the default team.
void READ_NAMES(frmKalco& form);

void ListName_Click(frmKalco& form);
void ListNum_Click(frmKalco& form);
void txtNumMod_LostFocus(frmKalco& form);

/// Pack ListNum into PackedNumberText, which a failure leaves as it was. Errors as for the packing.
void NUM_SHIRT_HEX(frmKalco& form);
void NUM_SHIRT_HEX_ML(frmKalco& form);

/// Gives the selected player the number of txtNumMod; a team mate who wears it takes over the old one.
void cmdModNum_Click(frmKalco& form);
/// Writes the last packing over the team's record, whatever team it came from.
void cmdSaveNum_Click(frmKalco& form);
/// The same without message and reopening.
void SAVE_Numeri(frmKalco& form);
void cmdExpNum_Click(frmKalco& form);
/// Replaces, packs and writes number by number; what was written before a failure stays.
void cmdImpNum_Click(frmKalco& form);

}  // namespace kalco
