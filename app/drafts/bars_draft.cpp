#include <QStringList>

#include "app/drafts/record_draft.h"
#include "app/drafts/typing.h"
#include "app/text.h"
#include "disc/bars.h"
#include "disc/codec/hextext.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

constexpr std::array<const char*, bar_count> bar_names{"Offense", "Defense", "Power", "Speed", "Techinique"};

int bar_of(const std::string& digits, int bar) {
    return hex_pair(std::string_view(digits).substr(2 * static_cast<std::size_t>(bar - 1), 2));
}

}  // namespace

BarsDraft::BarsDraft(frmKalco& form, Listeners& listeners) : RecordDraft(form) {
    listen(listeners, {&form.cmdSalva.click, &form.cmdImport.click, &form.cmdOpen.click});
}

Draft BarsDraft::compare() {
    // Nothing changes them elsewhere but another image, which empties the rows.
    if (form_.SSTab1.tab() != tab::formations && form_.listApp2.count() > 0) return draft();
    rows_.clear();
    for (int row = 0; row < bar_teams && row < form_.listApp2.count(); ++row) {
        const std::string& shown = form_.listApp2.item(row);
        const std::string stored = hex_digits(form_.image.read(bars_field(TeamRow(row))));
        if (shown == stored || shown.size() != stored.size()) continue;
        rows_.push_back({row, shown, {}});
        for (int bar = 1; bar <= bar_count; ++bar) {
            const int before = bar_of(stored, bar);
            const int after = bar_of(shown, bar);
            if (before == after) continue;
            const QString name = QString::fromLatin1(bar_names.at(static_cast<std::size_t>(bar - 1)));
            rows_.back().changes.push_back({name, QString::number(before), QString::number(after)});
        }
    }
    return draft_of(rows_);
}

Draft BarsDraft::draft_of(const std::vector<Row>& rows) {
    Draft draft;
    if (rows.empty()) return draft;
    QStringList teams;
    for (const Row& row : rows) {
        teams << qt_text(form_.cboSeqSQ2.items().at(static_cast<std::size_t>(row.row)));
        draft.changes.insert(draft.changes.end(), row.changes.begin(), row.changes.end());
    }
    draft.owner = teams.join(QStringLiteral(", "));
    draft.title = QStringLiteral("Barre di %1 non salvate").arg(draft.owner);
    draft.make_again = [this, rows] { set_bars(rows); };
    return draft;
}

void BarsDraft::set_bars(const std::vector<Row>& rows) {
    // Entering the tab reads the rows that opening an image has emptied.
    if (form_.listApp2.count() == 0) user::select_tab(form_, tab::players);
    user::select_tab(form_, tab::formations);
    for (const Row& row : rows) {
        if (!go_to_row(form_, form_.cboSeqSQ2, row.row)) return;
        for (int bar = 1; bar <= bar_count; ++bar) {
            const int value = bar_of(row.digits, bar);
            while (form_.pbFZ(bar).value() != value) {
                const int before = form_.pbFZ(bar).value();
                user::click(form_, before < value ? form_.cmdPiu(bar) : form_.cmdMeno(bar));
                if (form_.pbFZ(bar).value() == before) break;
            }
        }
    }
}

Draft BarsDraft::unwritten(const Draft&) {
    std::vector<Row> gone;
    for (const Row& row : rows_) {
        const bool waits = form_.listApp2.item(row.row) == row.digits;
        if (!waits && hex_digits(form_.image.read(bars_field(TeamRow(row.row)))) != row.digits) gone.push_back(row);
    }
    return draft_of(gone);
}

}  // namespace kalco::app
