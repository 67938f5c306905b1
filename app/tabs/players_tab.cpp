#include "app/tabs/players_tab.h"

#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "app/short_roles.h"
#include "app/text.h"
#include "app/widgets/portrait_view.h"
#include "disc/numbers.h"
#include "disc/player_record.h"
#include "disc/runtime_error.h"
#include "disc/teams.h"

namespace kalco::app {
namespace {

QString short_role(const std::string& entry) {
    try {
        const auto groups = groups_of_entry(entry);
        const DecodedPlayer player =
            decode_player({word_of_group(groups[0]), word_of_group(groups[1]), word_of_group(groups[2])});
        const auto* const found = std::ranges::find(role_texts, player.role.value_or(std::string()));
        if (found == role_texts.end()) return {};
        return qt_text(short_roles.at(static_cast<std::size_t>(found - role_texts.begin())));
    } catch (const RuntimeError&) {
        return {};
    }
}

std::vector<std::string> shirt_numbers(const frmKalco& form) {
    const auto row = row_of(Team(form.cboSeqSQ.row()));
    if (!row || !form.image.is_open()) return {};
    try {
        const std::string record = form.image.read(number_field(*row));
        return is_nation(*row) ? decode_national_numbers(record) : decode_club_numbers(record);
    } catch (const RuntimeError&) {
        return {};
    }
}

/// The shortest of a team's name tables: what is longer is cut there.
int shortest_table_name(int team) {
    int least = 0;
    if (!Team(team).exists()) return least;
    for (const int length : team_facts.at(static_cast<std::size_t>(team)).name_lengths) {
        if (length > 0 && (least == 0 || length < least)) least = length;
    }
    return least;
}

}  // namespace

PlayersTab::PlayersTab(Binder& binder, QWidget& page, const Drafts& drafts)
    : Tab(binder, page),
      drafts_(drafts),
      portrait_(view<PortraitView>("viewPortrait")),
      unsaved_names_(view<QLabel>("viewUnsavedNames")),
      unsaved_player_(view<QLabel>("viewUnsavedPlayer")),
      restore_(view<QPushButton>("viewRestore")),
      roster_(widget_of<RowsView>(form_.listDat)),
      names_marks_(binder),
      player_marks_(binder),
      short_name_(widget_of<QLineEdit>(form_.txtSqShort)),
      full_name_(widget_of<QLineEdit>(form_.txtSqHEX)),
      table_name_(widget_of<QLineEdit>(form_.txtSqDec)),
      player_name_(widget_of<QLineEdit>(form_.txtName)) {
    // The buttons beside it stay where they are.
    unsaved_player_.setMinimumWidth(unsaved_player_.fontMetrics().horizontalAdvance(unsaved_text.toString()));
    roster_.note = [this](int row) { return note(row); };
    QObject::connect(&restore_, &QPushButton::clicked, &page, [this] { read_again(); });
}

void PlayersTab::refresh() {
    show_portrait();
    show_unsaved();
    show_lengths();
    show_roster();
    restore_.setEnabled(form_.listDat.row() >= 0 && form_.listDat.takes_input());
}

void PlayersTab::show_portrait() {
    Looks looks;
    looks.skin = form_.cboPelle.row();
    looks.hair_style = form_.cboCapelli.text();
    looks.hair_colour = form_.cboColCap.row();
    looks.beard_style = form_.cboStlBar.text();
    looks.beard_colour = form_.cboColBar.row();
    portrait_.show_looks(looks);
}

void PlayersTab::show_unsaved() {
    unsaved_names_.setText(unsaved_mark(drafts_.names()));
    unsaved_player_.setText(unsaved_mark(drafts_.player()));
    names_marks_.show(drafts_.names());
    player_marks_.show(drafts_.player());
}

void PlayersTab::show_lengths() {
    const bool team = form_.cboSeqSQ.row() >= 0;
    short_name_.show_limit(team ? form_.txtSqShort.max_length() : 0);
    full_name_.show_limit(team ? form_.txtSqHEX.max_length() : 0);
    table_name_.show_limit(shortest_table_name(form_.cboSeqSQ.row()));
    player_name_.show_limit(form_.listDat.row() >= 0 ? form_.txtName.max_length() : 0);
}

void PlayersTab::show_roster() {
    std::vector<std::string> numbers = shirt_numbers(form_);
    if (numbers == numbers_) return;
    numbers_ = std::move(numbers);
    roster_.viewport()->update();
}

RowNote PlayersTab::note(int row) const {
    const auto index = static_cast<std::size_t>(row);
    QStringList parts;
    if (row < form_.listApp.count()) parts << short_role(form_.listApp.item(row));
    if (index < numbers_.size()) parts << qt_text(numbers_[index]);
    parts.removeAll(QString());
    RowNote result;
    result.note = parts.join(QStringLiteral(" · "));
    return result;
}

void PlayersTab::read_again() {
    // The list's own click, without its focus: a field with a wrong value would keep it.
    binder_.act([this] { form_.listDat.pick(form_.listDat.row()); }, Binder::Focus::stay);
}

}  // namespace kalco::app
