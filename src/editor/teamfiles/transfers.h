#pragma once

#include "editor/window/frmKalco.h"

/// Exchanges of players between two team files; the image is never touched here.
namespace kalco {

/// The controls of one of the two sides.
struct TransferSide {
    ListBox& lines;  ///< All lines of the file, unchanged.
    ListBox& names;  ///< The 23 names, a blank before each.
    TextBox& team;   ///< The long name in capitals.
};

void connect_transfers(frmKalco& form);

/// The file that a side with that name is saved to. Error 52 when the name can't be a file's.
std::string transfer_file_path(const frmKalco& form, const TextBox& team);

void cmdTeam1_Click(frmKalco& form);
void cmdteam2_Click(frmKalco& form);
void ListVende_Click(frmKalco& form);
void OpNREC_Click(frmKalco& form);
void OpRec_Click(frmKalco& form);
void cmdTransfer_Click(frmKalco& form);
/// Errors as for write_lines, and 52 for a name that can't be a file's, are told in a message.
void cmdSave1_Click(frmKalco& form);
void cmdSave2_Click(frmKalco& form);

}  // namespace kalco
