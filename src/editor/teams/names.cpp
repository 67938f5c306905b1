#include "editor/teams/names.h"

#include "disc/codec/latin1.h"
#include "disc/team_names.h"
#include "disc/team_renaming.h"

namespace kalco {

void SAVE_NAME_SQ(frmKalco& form) {
    const NewNames names{form.txtSqShort.text(), form.txtSqHEX.text(), form.txtSqDec.text()};
    rename_team(form.image, form.letters, Team(form.cboSeqSQ.row()), names, form.old_names.full_width);
    form.txtSqShort.set_text(upper(form.txtSqShort.text()));
    form.txtSqDec.set_text(upper(form.txtSqDec.text()));
}

void cmdName_Click(frmKalco& form) {
    if (form.cboSeqSQ.row() < 0) return;
    SAVE_NAME_SQ(form);
    form.tell_saved("Nomi squadra: " + form.cboSeqSQ.text(), "Nome squadra modificato");
    form.reopen_image();
}

void txtSqHEX_Change(frmKalco& form) {
    form.txtSqHEX.set_max_length(full_width_letters(Team(form.cboSeqSQ.row())));
}

void txtSqShort_Change(frmKalco& form) {
    form.txtSqShort.set_max_length(short_name_bytes);
}

void connect_teams(frmKalco& form) {
    form.cboSeqSQ.set_items(all_team_rows());
    form.txtSqHEX.change = [&form] { txtSqHEX_Change(form); };
    form.txtSqShort.change = [&form] { txtSqShort_Change(form); };
    form.cmdName.click = [&form] { cmdName_Click(form); };
}

}  // namespace kalco
