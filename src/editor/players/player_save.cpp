#include "editor/players/player_save.h"

#include "disc/codec/decimal.h"
#include "disc/codec/hextext.h"
#include "disc/codec/latin1.h"
#include "disc/players.h"
#include "editor/players/player_fields.h"
#include "editor/players/team_selection.h"
#include "editor/teams/names.h"
#include "editor/window/general.h"

namespace kalco {
namespace {

/// The last team whose single players the save button writes by itself; RoutLung goes on from there.
constexpr Team last_team_saved_here{58};
constexpr int digits_limit = 3;

bool is_digit(char character) {
    return character >= '0' && character <= '9';
}

/// Text4 to Text6 follow the packed words, unless they still hold the entry that the list shows.
void pack_bytes(frmKalco& form, const std::string& entry) {
    if (form.Text4.text() + ' ' + form.Text5.text() + ' ' + form.Text6.text() == entry) return;
    form.Text4.set_text(file_order_digits(number_of(form.Text1.text())));
    form.Text5.set_text(file_order_digits(number_of(form.Text2.text())));
    form.Text6.set_text(file_order_digits(number_of(form.Text3.text())));
}

/// Name and record of the selected player, each only when it has changed; then the team is read back.
void save_player(frmKalco& form) {
    const Team team(form.cboSeqSQ.row());
    const int row = form.listDat.row();
    const PlayerPlace place = place_of(team, row);
    if (form.txtName.text() != form.listDat.item(row)) {
        write_player_name(form.image, place, form.txtName.text());
    }
    const std::string digits = without_blanks(form.Text4.text() + form.Text5.text() + form.Text6.text());
    if (digits != without_blanks(form.listApp.item(row))) {
        write_player_record(form.image, place, digits);
    }
    finish_save(form, team, "Giocatore: " + form.cboSeqSQ.text() + ", " + std::string(trim(form.txtName.text())));
    if (row > 0) form.listDat.select(row);
}

void step(TextBox& field, int change, int limit) {
    const std::int64_t value = number_of(field.text());
    const bool allowed = change < 0 ? value > limit : value < limit;
    if (allowed) field.set_text(std::to_string(value + change));
}

}  // namespace

void Costo_ML(frmKalco& form) {
    const std::int64_t cost = number_of(form.txtML.text());
    write_cost(form.image, place_of(Team(form.cboSeqSQ.row()), form.listDat.row()), cost);
}

void finish_save(frmKalco& form, Team team, const std::string& what) {
    form.tell_saved(what);
    form.reopen_image();
    select_team(form, team);
}

void RoutLung(frmKalco& form) {
    const bool pool = Team(form.cboSeqSQ.row()) == default_list;
    save_player(form);
    if (!pool) return;
    raise(form.slots.NAME_NO_CONTACT);
    raise(form.slots.CONTR_NAME_NC);
}

void cmdSaveCar_GotFocus(frmKalco& form) {
    for (TextBox* bytes : {&form.Text4, &form.Text5, &form.Text6}) bytes->set_text({});
    FillBlankFields(form);
}

void cmdSaveCar_Click(frmKalco& form) {
    const Team team(form.cboSeqSQ.row());
    const int row = form.listDat.row();
    if (!team.exists()) return;
    if (has_cost(team)) Costo_ML(form);
    if (form.ImportPending == 1) {
        SAVE_NAME_SQ(form);
        raise(form.slots.SALV_IMP);
        return;
    }
    if (form.ImportPendingML == 1) {
        raise(form.slots.SAVE_IMP_ML);
        return;
    }
    pack_bytes(form, form.listApp.item(row));
    if (team <= last_team_saved_here) {
        save_player(form);
        if (is_nation(team)) raise(form.slots.NAMES_GIOC_NAZ);
    } else if (!is_club(team)) {
        RoutLung(form);
    }
}

void cmdSottH_Click(frmKalco& form) {
    step(form.txtAlt, -1, lowest_height);
}

void cmdAddH_Click(frmKalco& form) {
    step(form.txtAlt, 1, highest_height);
}

void cmdSottEta_Click(frmKalco& form) {
    step(form.txtEta, -1, lowest_age);
}

void cmdAddEta_Click(frmKalco& form) {
    step(form.txtEta, 1, highest_age);
}

void txtName_LostFocus(frmKalco& form) {
    std::string name = form.txtName.text();
    if (name.empty()) return;
    ProperCase(name);
    form.txtName.set_text(name);
}

void txtML_LostFocus(frmKalco& form) {
    if (form.txtML.text().empty() || number_of(form.txtML.text()) <= highest_cost) return;
    form.inform("Inserire in Costo ML un valore\r\n     compreso fra 0 e 250");
    form.set_focus(form.txtML);
    form.txtML.select(0, digits_limit);
}

void connect_player_save(frmKalco& form) {
    form.cmdSaveCar.got_focus = [&form] { cmdSaveCar_GotFocus(form); };
    form.cmdSaveCar.click = [&form] { cmdSaveCar_Click(form); };
    form.cmdSottH.click = [&form] { cmdSottH_Click(form); };
    form.cmdAddH.click = [&form] { cmdAddH_Click(form); };
    form.cmdSottEta.click = [&form] { cmdSottEta_Click(form); };
    form.cmdAddEta.click = [&form] { cmdAddEta_Click(form); };
    form.txtName.lost_focus = [&form] { txtName_LostFocus(form); };
    form.txtML.lost_focus = [&form] { txtML_LostFocus(form); };
    for (TextBox* number : {&form.txtML, &form.txtAlt, &form.txtEta}) number->key_filter = is_digit;
}

}  // namespace kalco
