#include "editor/league/no_contact.h"

#include <algorithm>

#include "disc/codec/decimal.h"
#include "disc/codec/latin1.h"
#include "disc/links.h"
#include "disc/players.h"
#include "disc/team_import.h"
#include "disc/teams.h"
#include "editor/league/club_names.h"
#include "editor/league/links.h"
#include "editor/window/shell.h"

namespace kalco {
namespace {

constexpr std::string_view changed_mark = " *";

/// The clubs of cboSqNC whose texts end in a blank: the first two and the last five.
bool has_trailing_blank(Club club) {
    return club < Club(2) || club >= Club(Club::count - 5);
}

std::vector<std::string> club_combo_rows() {
    std::vector<std::string> rows = club_rows();
    for (const Club club : every<Club>()) {
        if (has_trailing_blank(club)) rows[club.place()] += ' ';
    }
    return rows;
}

bool is_default_row(PoolRow row) {
    return std::find(DefaultSlots.begin(), DefaultSlots.end(), row) != DefaultSlots.end();
}

bool is_picked(const frmKalco& form, int row) {
    const auto& picked = form.ListAppIDX.items();
    return std::find(picked.begin(), picked.end(), std::to_string(row)) != picked.end();
}

void show_pick_count(frmKalco& form) {
    form.lblNumGioc.set_caption(std::to_string(form.listAppNameNC.count()));
}

void empty_picks(frmKalco& form) {
    for (ListBox* list : {&form.listAppNameNC, &form.listAppNC, &form.ListAppIDX}) list->clear();
    show_pick_count(form);
}

void add_pick(frmKalco& form, int row) {
    form.listAppNameNC.add(form.listNC.item(row));
    form.ListAppIDX.add(std::to_string(row));
    form.listAppNC.add(form.listHexNC.item(row));
    show_pick_count(form);
}

void finish_picking(frmKalco& form) {
    form.listAppNameNC.select(form.listAppNameNC.count() - 1);
    form.inform("OK hai selezionato i 23 Giocatori, ora\r\npuoi importare la squadra desiderata");
    form.listNC.set_enabled(false);
    std::string links;
    for (const std::string& code : form.listAppNC.items()) links += code;
    form.Text7.set_text(links);
    form.cmdImpNC.set_enabled(true);
}

/// Marks the rows that are not as they were when the names were last taken.
void mark_changed_rows(frmKalco& form) {
    for (int row = 0; row < form.listNC.count(); ++row) {
        const std::string& name = form.listNC.item(row);
        if (name == form.ListAppOrigName.item(row)) continue;
        form.listNC.replace(row, std::string(trim(name)).append(changed_mark));
    }
}

}  // namespace

void NAME_NO_CONTACT(frmKalco& form) {
    form.listNC.assign(read_pool_names(form.image));
}

void CONTR_NAME_NC(frmKalco& form) {
    form.ListAppOrigName.assign(form.listNC.items());
}

void NAZ_NC(frmKalco& form) {
    form.listHexNC.select(form.listNC.row());
    if (const auto nationality = nationality_of(left(form.listHexNC.text(), 2))) form.lblNaz.set_caption(*nationality);
}

void OFF_ML_NC(const frmKalco& form, ImagePos& position1, ImagePos& position2) {
    LinKML(row_of(Club(form.cboSqNC.row())), position1, position2);
}

void SAVE_NC(frmKalco& form) {
    std::vector<PoolRow> rows;
    for (const std::string& row : form.ListAppIDX.items()) rows.emplace_back(static_cast<int>(number_of(row)));
    write_imported_pool_rows(form.image, rows, {form.listDat.items(), form.listApp.items()});
}

void cboSqNC_Click(frmKalco& form) {
    form.listNC.set_enabled(true);
    NameSqML(form);
}

void listNC_Click(frmKalco& form) {
    form.listNC.set_hint(is_default_row(PoolRow(form.listNC.row()))
                             ? "Non vengono selezionati i giocatori della squadra Default"
                             : "Doppio click per selezionare il giocatore");
    NAZ_NC(form);
}

void listNC_DblClick(frmKalco& form) {
    const int row = form.listNC.row();
    form.listHexNC.select(row);
    if (is_picked(form, row)) {
        form.platform.message("Attenzione non puoi scegliere un gio-\n\rcatore gi\xE0 selezionato in precedenza",
                              Icon::warning, Buttons::ok);
        return;
    }
    if (is_default_row(PoolRow(row)) || form.listAppNameNC.count() >= roster_players) return;
    add_pick(form, row);
    if (form.listAppNameNC.count() == roster_players) finish_picking(form);
}

void listAppNameNC_DblClick(frmKalco& form) {
    const int pick = form.listAppNameNC.row();
    if (pick < 0) return;
    for (ListBox* list : {&form.listAppNameNC, &form.listAppNC, &form.ListAppIDX}) list->remove(pick);
    show_pick_count(form);
    if (form.listAppNameNC.count() < roster_players) form.listNC.set_enabled(true);
}

void cmdImpNC_Click(frmKalco& form) {
    raise(form.slots.cmdImp);
    form.cmdSaveNC.set_enabled(true);
}

void cmdSaveNC_Click(frmKalco& form) {
    const Club club(form.cboSqNC.row());
    if (!club.exists()) return;
    SAVE_NC(form);
    SAVE_NAME_ML(form);
    write_link_table(form.image, club, form.Text7.text());
    form.tell_saved("Link No-Contact: " + std::string(trim(form.cboSqNC.text())));
    form.reopen_image();
    cmdNew_Click(form);
    NAME_NO_CONTACT(form);
    form.cboSqNC.select(club.value());
    empty_picks(form);
    form.listNC.set_enabled(false);
    form.cmdImpNC.set_enabled(false);
    form.cmdSaveNC.set_enabled(false);
    mark_changed_rows(form);
}

void cmdNuevo_Click(frmKalco& form) {
    form.cboSqNC.select(0);
    form.cboSqNC.set_text({});
    form.cmdImpNC.set_enabled(false);
    form.cmdSaveNC.set_enabled(false);
    form.listNC.select(0);
    empty_picks(form);
}

void cmdHelp_Click(frmKalco& form) {
    form.inform(
        "Il simbolo * accanto al giocatore non viene sal- \n\rvato nella modifica, ma serve solo al momento \n\r"
        "per indicare i giocatori gi\xE0 selezionati. ");
}

void connect_no_contact(frmKalco& form) {
    form.cboSqNC.set_items(club_combo_rows());
    form.listHexNC.assign(pool_codes());
    form.listAppNameNC.set_hint("Doppio Click per cancellare il giocatore");
    form.slots.NAME_NO_CONTACT = [&form] { NAME_NO_CONTACT(form); };
    form.slots.CONTR_NAME_NC = [&form] { CONTR_NAME_NC(form); };
    form.cboSqNC.click = [&form] { cboSqNC_Click(form); };
    form.listNC.click = [&form] { listNC_Click(form); };
    form.listNC.double_click = [&form] { listNC_DblClick(form); };
    form.listAppNameNC.double_click = [&form] { listAppNameNC_DblClick(form); };
    form.cmdImpNC.click = [&form] { cmdImpNC_Click(form); };
    form.cmdSaveNC.click = [&form] { cmdSaveNC_Click(form); };
    form.cmdNuevo.click = [&form] { cmdNuevo_Click(form); };
    form.cmdHelp.click = [&form] { cmdHelp_Click(form); };
}

}  // namespace kalco
