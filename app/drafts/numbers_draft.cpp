#include "app/drafts/record_draft.h"
#include "app/drafts/typing.h"
#include "app/text.h"
#include "disc/numbers.h"
#include "editor/window/user.h"

namespace kalco::app {

NumbersDraft::NumbersDraft(frmKalco& form, Listeners& listeners) : RecordDraft(form) {
    listen(listeners,
           {&form.cboSQNum.click, &form.cmdImpNum.click, &form.cmdOpen.click, &form.cmdNew.click, &form.SSTab1.change});
}

std::vector<std::string> NumbersDraft::stored() const {
    const std::string record = form_.image.read(number_field(row_));
    return is_nation(row_) ? decode_national_numbers(record) : decode_club_numbers(record);
}

Draft NumbersDraft::compare() {
    row_ = TeamRow(form_.cboSQNum.row());
    if (!row_.exists()) return {};
    wanted_ = form_.ListNum.items();
    const std::vector<std::string> before = stored();
    const QString owner = qt_text(form_.cboSQNum.text());
    Draft draft{QStringLiteral("Numeri di %1 non salvati").arg(owner), owner, {}, {}};
    for (std::size_t i = 0; i < wanted_.size() && i < before.size(); ++i) {
        if (before[i] == wanted_[i]) continue;
        const QString player = qt_text(form_.ListName.item(static_cast<int>(i)));
        draft.changes.push_back({player, qt_text(before[i]), qt_text(wanted_[i])});
    }
    if (draft.empty()) return draft;
    draft.make_again = [this, row = row_, wanted = wanted_] {
        user::select_tab(form_, tab::numbers);
        if (go_to_row(form_, form_.cboSQNum, row.value())) set_numbers(wanted);
    };
    return draft;
}

void NumbersDraft::set_numbers(const std::vector<std::string>& wanted) {
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const int player = static_cast<int>(i);
        if (form_.ListNum.item(player) == wanted[i]) continue;
        if (!go_to_row(form_, form_.ListName, player)) return;
        // A number that another one wears is swapped: the rows before this one have theirs already.
        user::type(form_, form_.txtNumMod, wanted[i]);
        user::click(form_, form_.cmdModNum);
    }
}

Draft NumbersDraft::unwritten(const Draft& last) {
    return stored() == wanted_ ? Draft() : last;
}

}  // namespace kalco::app
