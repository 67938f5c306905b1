#include "editor/window/tabs.h"

#include "disc/team_names.h"
#include "editor/window/side_file.h"

namespace kalco {
namespace {

constexpr int shirt_number_limit = 2;

void enter_players(frmKalco& form) {
    make_side_directory(form.platform, directory::export_teams);
    link_reset(form);
    kicker_reset(form);
    number_reset(form);
}

void enter_league(frmKalco& form) {
    for (int team = 0; team < roster_team_count; ++team) {
        form.listSQLink.add(read_table_name(form.image, Team(team)));
    }
    kicker_reset(form);
    number_reset(form);
}

void enter_kickers(frmKalco& form) {
    for (TeamRow row(0); row < default_team_row; ++row) form.listAtt.add(read_table_name(form.image, team_of(row)));
    form.listAtt.insert(default_team_name, default_team_row.value());
    link_reset(form);
    number_reset(form);
    no_contact_reset(form);
    form.fraKick.set_enabled(false);
}

void enter_transfers(frmKalco& form) {
    make_side_directory(form.platform, directory::transfer);
    link_reset(form);
    kicker_reset(form);
    number_reset(form);
    no_contact_reset(form);
}

void enter_formations(frmKalco& form) {
    for (int k = first_marker; k <= last_marker; ++k) form.lblGioc(k).set_selected(false);
    form.txtSqHEX2.set_text({});
    form.cboSeqSQ2.set_text({});
    form.cboRL.set_text({});
    form.fraCord.set_enabled(false);
    form.cboRL.set_enabled(false);
    form.Frame6.set_enabled(false);
    form.fraImpExp.set_enabled(false);
    form.cboMod.set_text({});
    form.lblNameG.set_caption({});
    for (int i = form.pbFZ.first(); i <= form.pbFZ.last(); ++i) {
        form.pbFZ(i).set_value(0);
        form.pbFZ(i).set_caption({});
        form.cmdPiu(i).set_enabled(false);
        form.cmdMeno(i).set_enabled(false);
    }
    form.cmdSalva.set_enabled(false);
    raise(form.slots.Read_Bar);
    number_reset(form);
    no_contact_reset(form);
    link_reset(form);
    kicker_reset(form);
}

void enter_numbers(frmKalco& form) {
    form.txtNumMod.set_max_length(shirt_number_limit);
    link_reset(form);
    kicker_reset(form);
    no_contact_reset(form);
    form.cmdModNum.set_enabled(false);
    form.cmdImpNum.set_enabled(false);
    form.cmdExpNum.set_enabled(false);
    form.cmdSaveNum.set_enabled(false);
}

}  // namespace

void kicker_reset(frmKalco& form) {
    form.listAtt.clear();
    form.txtAtt.set_text({});
    form.cboSquadra.set_text({});
    for (int i = form.txtNM.first(); i <= form.txtNM.last(); ++i) form.txtNM(i).set_text({});
    for (auto* column : {&form.opCPC, &form.opCPL, &form.opCAD, &form.opCAS, &form.opRIG, &form.opCAP}) {
        // The first button of each column keeps its state.
        for (int i = 1; i <= column->last(); ++i) (*column)(i).set_value(false);
    }
}

void number_reset(frmKalco& form) {
    for (int number = form.lblNum.first(); number <= form.lblNum.last(); ++number)
        form.lblNum(number).set_in_use(false);
    form.ListName.clear();
    form.ListNum.clear();
    form.txtNumMod.set_text({});
    form.cboSQNum.set_text({});
    form.txtSqSel.set_text({});
    form.cmdModNum.set_enabled(false);
    form.cmdSaveNum.set_enabled(false);
}

void no_contact_reset(frmKalco& form) {
    form.cmdImpNC.set_enabled(false);
    form.cmdSaveNC.set_enabled(false);
    form.listNC.set_enabled(false);
}

void link_reset(frmKalco& form) {
    form.listSQLink.clear();
}

void SSTab1_Click(frmKalco& form) {
    switch (form.SSTab1.tab()) {
        case tab::players: enter_players(form); break;
        case tab::league: enter_league(form); break;
        case tab::kickers: enter_kickers(form); break;
        case tab::transfers: enter_transfers(form); break;
        case tab::formations: enter_formations(form); break;
        case tab::numbers: enter_numbers(form); break;
        default: break;
    }
}

}  // namespace kalco
