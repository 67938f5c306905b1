#include "editor/league/club_names.h"

#include "disc/team_names.h"
#include "disc/team_renaming.h"
#include "editor/window/general.h"

namespace kalco {

void NameSqML(frmKalco& form) {
    form.lblNameML.set_caption(read_full_width_name(form.image, team_of(Club(form.cboSqNC.row()))));
}

void SAVE_NAME_ML(frmKalco& form) {
    const NewNames names{form.txtSqShort.text(), form.txtSqHEX.text(), form.txtSqDec.text()};
    rename_club(form.image, form.letters, Club(form.cboSqNC.row()), names, form.lblNameML.caption());
}

void SAVE_NAME_ML2(frmKalco& form) {
    std::string long_name = form.txtNmLgML.text();
    ProperCase(long_name);
    const NewNames names{form.txtNmShML.text(), long_name, form.txtNmLgML.text()};
    rename_club(form.image, form.letters, Club(form.listDefault.row()), names, std::nullopt);
}

}  // namespace kalco
