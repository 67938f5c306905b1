#include "editor/teamfiles/import_save.h"

#include "disc/player_writing.h"
#include "disc/roster.h"
#include "disc/teams.h"
#include "editor/players/player_save.h"

namespace kalco {
namespace {

/// The last team that SALV_IMP writes by itself; RoutLung2 goes on from there.
constexpr int last_team_saved_here = 52;

/// For this team an import places the split of record 21 one entry later: record 21 goes whole over the sector's end,
/// and record 22 over its head and to the second piece, so that its own slot is never written.
constexpr int late_split_team = 1;
constexpr int late_split_player = 21;

Pieces imported_record_field(int team, int player) {
    if (team == late_split_team) {
        const Pieces split = roster_record_field(team, late_split_player);
        if (player == late_split_player) return Piece{split.position(), player_record_bytes};
        if (player == late_split_player + 1) return split;
    }
    return roster_record_field(team, player);
}

void write_imported_team(frmKalco& form, int team) {
    for (int i = 0; i < roster_players; ++i) {
        write_player_name(form.image, roster_name_field(team, i), form.listDat.item(i));
    }
    // The counter runs one past the roster: a 24th player of the file goes to the slot behind the last one.
    for (int i = 0; i <= roster_players; ++i) {
        write_player_record(form.image, imported_record_field(team, i), form.listApp.item(i));
    }
    finish_save(form, team, "Importazione squadra: " + form.cboSeqSQ.text());
    form.listDat.select(0);
}

}  // namespace

void SALV_IMP(frmKalco& form) {
    const int team = form.cboSeqSQ.row();
    if (team <= last_team_saved_here) {
        write_imported_team(form, team);
    } else {
        RoutLung2(form);
    }
    form.ImportPending = 0;
    if (is_nation(team)) raise(form.slots.NAMES_GIOC_NAZ);
}

void RoutLung2(frmKalco& form) {
    const int team = form.cboSeqSQ.row();
    if (team < roster_team_count) write_imported_team(form, team);
}

void SAVE_IMP_ML(frmKalco& form) {
    const int selected = form.listDat.row();
    for (int place = 0; place < roster_players; ++place) {
        const int row = DefaultSlots[static_cast<std::size_t>(place)];
        write_player_name(form.image, pool_name_field(row), form.listDat.item(place));
    }
    for (int place = 0; place < roster_players; ++place) {
        const int row = DefaultSlots[static_cast<std::size_t>(place)];
        write_player_record(form.image, pool_record_field(row), form.listApp.item(place));
    }
    finish_save(form, default_list_team, "Importazione squadra: " + std::string(default_team_name));
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
