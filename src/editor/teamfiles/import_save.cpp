#include "editor/teamfiles/import_save.h"

#include "disc/team_import.h"
#include "disc/teams.h"
#include "editor/players/player_save.h"

namespace kalco {
namespace {

/// The last team that SALV_IMP writes by itself; RoutLung2 goes on from there.
constexpr Team last_team_imported_here{52};

ImportedPlayers players_of_lists(const frmKalco& form) {
    return {form.listDat.items(), form.listApp.items()};
}

void save_imported_team(frmKalco& form, Team team) {
    write_imported_team(form.image, team, players_of_lists(form));
    finish_save(form, team, "Importazione squadra: " + form.cboSeqSQ.text());
    form.listDat.select(0);
}

}  // namespace

void SALV_IMP(frmKalco& form) {
    const Team team(form.cboSeqSQ.row());
    if (team <= last_team_imported_here) {
        save_imported_team(form, team);
    } else {
        RoutLung2(form);
    }
    form.ImportPending = 0;
    if (is_nation(team)) raise(form.slots.NAMES_GIOC_NAZ);
}

void RoutLung2(frmKalco& form) {
    const Team team(form.cboSeqSQ.row());
    if (has_roster(team)) return save_imported_team(form, team);
    form.image.commit("Squadra: " + form.cboSeqSQ.text());
}

void SAVE_IMP_ML(frmKalco& form) {
    const int selected = form.listDat.row();
    write_imported_default_team(form.image, players_of_lists(form));
    finish_save(form, default_list, "Importazione squadra: " + std::string(default_team_name));
    if (selected > 0) form.listDat.select(selected);
    form.ImportPendingML = 0;
    raise(form.slots.NAME_NO_CONTACT);
    raise(form.slots.CONTR_NAME_NC);
}

void connect_import_save(frmKalco& form) {
    form.slots.SALV_IMP = [&form] { SALV_IMP(form); };
    form.slots.SAVE_IMP_ML = [&form] { SAVE_IMP_ML(form); };
}

}  // namespace kalco
