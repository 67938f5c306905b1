#include "editor/league/links.h"

#include "disc/codec/latin1.h"
#include "disc/links.h"
#include "disc/team_names.h"
#include "editor/league/club_names.h"

namespace kalco {

void NAMES_GIOC_NAZ(frmKalco& form) {
    std::vector<std::string> rows = read_roster_names(form.image);
    // One more than there are players.
    rows.push_back(read_player_name(form.image, RosterPlace{last_roster_team, roster_players}));
    form.listNameGiocNaz.assign(std::move(rows));
}

void listSQLink_Click(frmKalco& form) {
    form.txtNmLgML.set_text(form.listSQLink.text());
    form.txtNmShML.set_text(left(form.listSQLink.text(), short_name_bytes));
}

void cmdLink_Click(frmKalco& form) {
    if (form.listDefault.text().empty() || form.listSQLink.text().empty()) {
        form.inform("Devi selezionare entrambe le squadre");
        return;
    }
    if (!form.txtNmLgML.text().empty() && !form.txtNmShML.text().empty()) SAVE_NAME_ML2(form);
    write_links(form.image, Club(form.listDefault.row()), links_to_team(Team(form.listSQLink.row())));
    form.tell_saved("Link: " + form.listDefault.text() + ", " + form.listSQLink.text());
    form.reopen_image();
}

void connect_links(frmKalco& form) {
    form.listDefault.assign(club_rows());
    form.listHexLinkNames.assign(roster_codes());
    form.slots.NAMES_GIOC_NAZ = [&form] { NAMES_GIOC_NAZ(form); };
    form.listSQLink.click = [&form] { listSQLink_Click(form); };
    form.cmdLink.click = [&form] { cmdLink_Click(form); };
}

}  // namespace kalco
