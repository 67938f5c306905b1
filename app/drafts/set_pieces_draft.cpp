#include "app/drafts/record_draft.h"
#include "app/drafts/typing.h"
#include "app/text.h"
#include "disc/codec/hextext.h"
#include "disc/set_pieces.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

constexpr std::array<const char*, set_piece_bytes> column_names{"punizioni corte", "punizioni lunghe", "corner DX",
                                                                "corner SX",       "rigori",           "capitano"};

std::array<ControlArray<OptionButton>*, set_piece_bytes> option_columns(frmKalco& form) {
    return {&form.opCPC, &form.opCPL, &form.opCAD, &form.opCAS, &form.opRIG, &form.opCAP};
}

std::string_view pick_of(const std::string& digits, std::size_t column) {
    return std::string_view(digits).substr(2 * column, 2);
}

QString taker(const frmKalco& form, std::string_view pick) {
    const int row = hex_pair(pick);
    if (row >= set_piece_rows) return QStringLiteral("nessuno");
    return qt_text(form.txtNM(row + 1).text()).trimmed();
}

}  // namespace

SetPiecesDraft::SetPiecesDraft(frmKalco& form, Listeners& listeners) : RecordDraft(form) {
    listen(listeners, {&form.cboSquadra.click, &form.cmdImpKick.click, &form.cmdOpen.click, &form.cmdNew.click,
                       &form.SSTab1.change});
}

Draft SetPiecesDraft::compare() {
    row_ = TeamRow(form_.cboSquadra.row());
    if (!row_.exists()) return {};
    wanted_.clear();
    for (const std::string& pick : form_.set_piece_picks) wanted_ += pick;
    const std::string stored = hex_digits(form_.image.read(set_piece_field(row_)));
    const QString owner = qt_text(form_.cboSquadra.text());
    Draft draft{QStringLiteral("Tiratori di %1 non salvati").arg(owner), owner, {}, {}};
    for (std::size_t column = 0; column < set_piece_bytes; ++column) {
        const std::string_view before = pick_of(stored, column);
        const std::string_view after = form_.set_piece_picks[column];
        if (before == after) continue;
        draft.changes.push_back({QString::fromUtf8(column_names[column]), taker(form_, before), taker(form_, after)});
    }
    if (draft.empty()) return draft;
    draft.make_again = [this, row = row_, picks = form_.set_piece_picks] {
        user::select_tab(form_, tab::kickers);
        if (!go_to_row(form_, form_.cboSquadra, row.value())) return;
        for (std::size_t column = 0; column < set_piece_bytes; ++column) {
            ControlArray<OptionButton>& options = *option_columns(form_)[column];
            const int pick = hex_pair(picks[column]);
            if (options.has(pick)) user::click(form_, options(pick));
        }
    };
    return draft;
}

Draft SetPiecesDraft::unwritten(const Draft& last) {
    return hex_digits(form_.image.read(set_piece_field(row_))) == wanted_ ? Draft() : last;
}

}  // namespace kalco::app
