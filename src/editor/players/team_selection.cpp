#include "editor/players/team_selection.h"

#include "disc/codec/hextext.h"
#include "disc/codec/letters.h"
#include "disc/player_record.h"
#include "disc/players.h"
#include "disc/runtime_error.h"
#include "disc/team_names.h"
#include "editor/players/linked_names.h"
#include "editor/players/player_fields.h"
#include "editor/window/shell.h"

namespace kalco {
namespace {

void show_full_width_name(frmKalco& form, Team team) {
    if (const auto field = name_field(team, NamePlace::full_width)) {
        // Each piece is walked by itself here.
        for (const Piece& piece : *field) {
            const std::string bytes = form.image.read(piece.position, piece.bytes);
            form.txtSqHEX.set_text(form.txtSqHEX.text() + decode_letters(bytes));
        }
    }
    form.txtSQ.set_text(form.txtSqHEX.text());
}

void read_roster(frmKalco& form, Team team) {
    if (const auto club = club_of(team)) {
        form.listDat.assign(list_of_linked_names(form, *club));
        return;
    }
    form.listDat.clear();
    const int players = player_count(team);
    for (int i = 0; i < players; ++i) form.listDat.add(read_player_name(form.image, place_of(team, i)));
    form.listApp.clear();
    for (int i = 0; i < players; ++i) {
        form.listApp.add(hex_line(form.image.read(player_record_field(place_of(team, i)))));
    }
}

void enable_by_class(frmKalco& form, Team team) {
    const bool pool = team == default_list;
    const bool club = is_club(team);
    form.cmdName.set_enabled(!pool);
    form.cmdImpML.set_enabled(pool);
    form.cmdExp.set_enabled(!club && !pool);
    form.cmdSaveCar.set_enabled(!club);
    form.cmdImp.set_enabled(!club && !pool);
    form.listDat.set_enabled(!club);
}

void finish_selection(frmKalco& form, Team team) {
    if (is_club(team)) {
        Clear_Frame(form);
        form.txtSQ.set_text(form.txtSqHEX.text());
        return;
    }
    if (team == default_list) {
        form.txtSqShort.set_text({});
        form.txtSQ.set_text({});
    }
    form.listDat.select(0);
}

void show_words(frmKalco& form, int row) {
    const auto groups = groups_of_entry(form.listApp.item(row));
    form.Text4.set_text(groups[0]);
    form.Text5.set_text(groups[1]);
    form.Text6.set_text(groups[2]);
    form.Text1.set_text(std::to_string(word_of_group(groups[0])));
    form.Text2.set_text(std::to_string(word_of_group(groups[1])));
    form.Text3.set_text(std::to_string(word_of_group(groups[2])));
}

void show_player(frmKalco& form, Team team, int row) {
    form.cmdSaveCar.set_enabled(true);
    for (TextBox* bytes : {&form.Text4, &form.Text5, &form.Text6}) bytes->set_text({});
    form.lblPos.set_caption(std::to_string(row + 1));
    form.Label34.set_visible(true);
    form.lblPos.set_visible(true);
    form.txtName.set_text(form.listDat.item(row));
    show_words(form, row);
    DecodePlayer(form);
    if (const auto cost = read_cost(form.image, place_of(team, row))) form.txtML.set_text(std::to_string(*cost));
}

}  // namespace

void cboSeqSQ_Click(frmKalco& form) {
    const Team team(form.cboSeqSQ.row());
    form.ImportPending = 0;
    form.Frame3.set_enabled(true);
    form.cmdName.set_enabled(true);
    form.txtSqHEX.set_text({});
    form.txtSqShort.set_text({});
    form.txtSqShort.set_text(form.image.read(short_name_position(team), short_name_bytes));
    form.txtSqDec.set_text(read_table_name(form.image, team));
    show_full_width_name(form, team);
    read_roster(form, team);
    const bool costs = has_cost(team);
    form.txtML.set_enabled(costs);
    form.lblMl.set_enabled(costs);
    enable_by_class(form, team);
    finish_selection(form, team);
    form.old_names = {form.txtSqHEX.text(), form.txtSqShort.text(), form.txtSqDec.text()};
}

void select_team(frmKalco& form, Team team) {
    if (form.cboSeqSQ.row() == team.value()) {
        cboSeqSQ_Click(form);
    } else {
        form.cboSeqSQ.select(team.value());
    }
}

void listDat_Click(frmKalco& form) {
    try {
        show_player(form, Team(form.cboSeqSQ.row()), form.listDat.row());
    } catch (const RuntimeError& failure) {
        if (failure.number() != error::invalid_call) return;
        form.platform.message("Attenzione probabile errore nei parametri del giocatore", Icon::stop, Buttons::ok);
    }
}

void connect_team_selection(frmKalco& form) {
    form.cboSeqSQ.click = [&form] { cboSeqSQ_Click(form); };
    form.listDat.click = [&form] { listDat_Click(form); };
}

}  // namespace kalco
