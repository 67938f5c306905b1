#include "app/drafts/player_draft.h"

#include "app/drafts/typing.h"
#include "app/text.h"
#include "disc/player_facts.h"
#include "editor/window/general.h"
#include "editor/window/user.h"

namespace kalco::app {

std::vector<FieldDraft::Field> PlayerDraft::player_fields(frmKalco& form) {
    const auto field = [](const BitField& bits, Control& control) {
        return Field{qt_text(bits.caption).toLower(), &control};
    };
    std::vector<Field> fields{
        {QStringLiteral("nome"), &form.txtName},  field(role_bits, form.cboRuolo),
        field(out_of_role_bits, form.cboOutSide), {QStringLiteral("costo ML"), &form.txtML},
        field(skin_bits, form.cboPelle),          field(hair_style_bits, form.cboCapelli),
        field(hair_colour_bits, form.cboColCap),  field(beard_style_bits, form.cboStlBar),
        field(beard_colour_bits, form.cboColBar), field(boots_bits, form.cboScarpa),
        field(height_bits, form.txtAlt),          field(age_bits, form.txtEta),
        field(build_bits, form.cboFisico),        field(foot_bits, form.cboPiede),
    };
    const auto combos = skill_combos(form);
    for (std::size_t i = 0; i < skill_count; ++i) fields.push_back(field(skill_bits[i], *combos[i]));
    return fields;
}

PlayerDraft::PlayerDraft(frmKalco& form, Listeners& listeners) : FieldDraft(player_fields(form)), form_(form) {
    listeners.after(form.listDat.click, [this] { take_player(); });
    for (CommandButton* button : {&form.cmdNew, &form.cmdOpen, &form.cmdSaveNC}) {
        listeners.after(button->click, [this] { note_loaded(); });
    }
    listeners.after(form.cboSeqSQ.click, [this] { note_loaded(); });
    // An import that is pending is what the button saves then, not the fields.
    listeners.before(form.cmdSaveCar.click,
                     [this] { importing_ = form_.ImportPending != 0 || form_.ImportPendingML != 0; });
    listeners.after(form.cmdSaveCar.click, [this] {
        if (!importing_) note_saved();
    });
}

void PlayerDraft::take_player() {
    note_loaded();
    take_fields();
    team_ = form_.cboSeqSQ.row();
    row_ = form_.listDat.row();
    player_ = qt_text(form_.listDat.text());
}

Draft PlayerDraft::now() {
    if (row_ < 0 || team_ != form_.cboSeqSQ.row() || row_ != form_.listDat.row()) return {};
    const QString owner = player_;
    Draft draft{QStringLiteral("Modifiche a %1 non salvate").arg(owner), owner, changes(), {}};
    if (draft.empty()) return draft;
    draft.make_again = [this, team = team_, row = row_, type = typing(form_)] {
        user::select_tab(form_, tab::players);
        if (go_to_row(form_, form_.cboSeqSQ, team) && go_to_row(form_, form_.listDat, row)) type();
    };
    return draft;
}

NamesDraft::NamesDraft(frmKalco& form, Listeners& listeners)
    : FieldDraft({
          {QStringLiteral("sigla"), &form.txtSqShort},
          {QStringLiteral("nome"), &form.txtSqHEX},
          {QStringLiteral("nome tabelle"), &form.txtSqDec},
      }),
      form_(form) {
    listeners.after(form.cboSeqSQ.click, [this] { take_names(); });
    // The file of an import of the No-Contact players fills these fields too, on their hidden tab.
    listeners.after(form.cmdImpNC.click, [this] { take_names(); });
    for (CommandButton* button : {&form.cmdNew, &form.cmdOpen, &form.cmdSaveNC}) {
        listeners.after(button->click, [this] { note_loaded(); });
    }
    listeners.after(form.cmdName.click, [this] {
        take_names();
        note_saved();
    });
    // An import is saved with its names; saving a player reads the names again.
    listeners.before(form.cmdSaveCar.click, [this] { importing_ = form_.ImportPending != 0; });
    listeners.after(form.cmdSaveCar.click, [this] {
        if (form_.cboSeqSQ.row() < 0) return;
        take_names();
        if (importing_) note_saved();
    });
}

void NamesDraft::take_names() {
    note_loaded();
    take_fields();
    team_ = form_.cboSeqSQ.row();
}

Draft NamesDraft::now() {
    if (team_ < 0 || team_ != form_.cboSeqSQ.row()) return {};
    const QString owner = qt_text(form_.cboSeqSQ.text());
    Draft draft{QStringLiteral("Nomi di %1 non salvati").arg(owner), owner, changes(), {}};
    if (draft.empty()) return draft;
    draft.make_again = [this, team = team_, type = typing(form_)] {
        user::select_tab(form_, tab::players);
        if (go_to_row(form_, form_.cboSeqSQ, team)) type();
    };
    return draft;
}

}  // namespace kalco::app
