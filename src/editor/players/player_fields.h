#pragma once

#include "editor/window/frmKalco.h"

/// The player editor's fields: from a record's words to the controls and back.
namespace kalco {

/// The rows of the fields' pick lists, and the pictures that follow a choice of looks.
void connect_player_fields(frmKalco& form);

/// Shows the words of Text1 to Text3 in the fields and the pictures. A value that it does not reach leaves its field as
/// it was; a decoding that stopped on the way raises an error (not 5) after the fields that it reached.
void DecodePlayer(frmKalco& form);

/// Gives the blank fields their defaults and packs all fields into Text1 to Text3. Error 13 for a text that is no
/// number in a skill or in the hidden number.
void FillBlankFields(frmKalco& form);

void cboCapelli_Click(frmKalco& form);
void cboColCap_Click(frmKalco& form);
void cboScarpa_Click(frmKalco& form);
void cboStlBar_Click(frmKalco& form);
void cboColBar_Click(frmKalco& form);

}  // namespace kalco
