#include <algorithm>

#include "app/drafts/record_draft.h"
#include "app/drafts/typing.h"
#include "app/text.h"
#include "disc/formation.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

/// Presses an arrow until the value is reached, or does not change any more.
void step_to(frmKalco& form, const int& value, int wanted, CommandButton& back, CommandButton& forth) {
    while (value != wanted) {
        const int before = value;
        user::click(form, value < wanted ? forth : back);
        if (value == before) return;
    }
}

QString place_text(int x, int y) {
    return QStringLiteral("%1/%2").arg(x).arg(y);
}

}  // namespace

PitchDraft::PitchDraft(frmKalco& form, Listeners& listeners) : RecordDraft(form) {
    listen(listeners, {&form.cboSeqSQ2.click, &form.cmdImport.click, &form.cmdOpen.click, &form.cmdNew.click,
                       &form.SSTab1.change});
}

PitchDraft::Places PitchDraft::stored() const {
    const Formation formation = read_formation(form_.image, row_);
    Places places;
    for (std::size_t player = 0; player < outfield_players; ++player) {
        places.at(player + first_marker) = {std::string(role_label(formation.roles.at(player))), formation.x.at(player),
                                            formation.y.at(player)};
    }
    return places;
}

PitchDraft::Places PitchDraft::shown() const {
    Places places;
    for (int k = first_marker; k <= last_marker; ++k) {
        const auto index = static_cast<std::size_t>(k);
        places.at(index) = {form_.lblGioc(k).caption(), form_.FormationX.at(index), form_.FormationY.at(index)};
    }
    return places;
}

Draft PitchDraft::compare() {
    row_ = TeamRow(form_.cboSeqSQ2.row());
    // The tab forgets its team when it is entered.
    if (!row_.exists() || form_.SSTab1.tab() != tab::formations) return {};
    wanted_ = shown();
    const Places before = stored();
    const QString owner = qt_text(form_.cboSeqSQ2.text());
    Draft draft{QStringLiteral("Formazione di %1 non salvata").arg(owner), owner, {}, {}};
    for (std::size_t k = first_marker; k <= last_marker; ++k) {
        const Place& was = before.at(k);
        const Place& is = wanted_.at(k);
        if (was.role != is.role) {
            draft.changes.push_back({QStringLiteral("ruolo del %1").arg(k), qt_text(was.role), qt_text(is.role)});
        }
        if (was.x != is.x || was.y != is.y) {
            draft.changes.push_back(
                {QStringLiteral("posto del %1").arg(k), place_text(was.x, was.y), place_text(is.x, is.y)});
        }
    }
    if (draft.empty()) return draft;
    draft.make_again = [this, row = row_, module = form_.cboMod.row(), wanted = wanted_] {
        user::select_tab(form_, tab::formations);
        if (go_to_row(form_, form_.cboSeqSQ2, row.value())) arrange(module, wanted);
    };
    return draft;
}

void PitchDraft::arrange(int module, const Places& wanted) {
    if (module >= 0) user::pick(form_, form_.cboMod, module);
    for (int k = first_marker; k <= last_marker; ++k) {
        const auto index = static_cast<std::size_t>(k);
        if (shown().at(index) == wanted.at(index)) continue;
        user::click(form_, form_.lblGioc(k));
        step_to(form_, form_.FormationX.at(index), wanted.at(index).x, form_.cmdLeft, form_.cmdRight);
        step_to(form_, form_.FormationY.at(index), wanted.at(index).y, form_.cmdUp, form_.cmdDown);
        type_text(form_, form_.cboRL, wanted.at(index).role);
    }
}

Draft PitchDraft::unwritten(const Draft& last) {
    return stored() == wanted_ ? Draft() : last;
}

}  // namespace kalco::app
