#include "app/drafts/transfer_draft.h"

#include "app/text.h"
#include "disc/runtime_error.h"
#include "disc/team_file.h"
#include "editor/teamfiles/transfers.h"
#include "editor/window/side_file.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

QString player_of(const std::string& line) {
    try {
        return qt_text(name_of_player_line(line)).trimmed();
    } catch (const RuntimeError&) {
        return {};
    }
}

}  // namespace

TransferDraft::Side first_transfer_side(frmKalco& form) {
    return {form.cmdTeam1, form.cmdSave1, form.txtSquadra1, form.ListVende, form.listTras1};
}

TransferDraft::Side second_transfer_side(frmKalco& form) {
    return {form.cmdteam2, form.cmdSave2, form.txtSquadra2, form.ListCompra, form.listTras2};
}

TransferDraft::TransferDraft(frmKalco& form, Side side, Listeners& listeners) : form_(form), side_(side) {
    listeners.after(side_.open.click, [this] {
        note_loaded();
        stored_ = side_.lines.items();
    });
    listeners.after(side_.save.click, [this] {
        // A file that could not be written has been told already.
        if (file_holds_lines()) stored_ = side_.lines.items();
    });
}

bool TransferDraft::file_holds_lines() const {
    try {
        return read_lines(form_.platform, transfer_file_path(form_, side_.team)) == side_.lines.items();
    } catch (const RuntimeError&) {
        return false;
    }
}

Draft TransferDraft::now() {
    const QString owner = qt_text(side_.team.text());
    Draft draft{QStringLiteral("Scambi in %1 non salvati").arg(owner), owner, {}, {}};
    const std::vector<std::string>& lines = side_.lines.items();
    for (std::size_t i = head_lines; i < lines.size() && i < stored_.size(); ++i) {
        if (lines[i] == stored_[i]) continue;
        const QString place = QStringLiteral("posto %1").arg(i - head_lines + 1);
        draft.changes.push_back({place, player_of(stored_[i]), player_of(lines[i])});
    }
    if (draft.empty()) return draft;
    // The other file may be gone, so the exchanges can't be pressed again one by one: the file comes back as it stood.
    draft.make_again = [this, lines, stored = stored_, names = side_.names.items(), team = side_.team.text()] {
        user::select_tab(form_, tab::transfers);
        side_.lines.assign(lines);
        side_.names.assign(names);
        side_.team.set_text(team);
        stored_ = stored;
    };
    return draft;
}

}  // namespace kalco::app
