#include "app/tabs/numbers_tab.h"

#include <QLabel>
#include <QScrollBar>

#include "app/readable.h"
#include "app/text.h"
#include "app/widgets/number_board.h"
#include "app/widgets/rows_view.h"
#include "disc/numbers.h"
#include "disc/runtime_error.h"
#include "editor/window/user.h"

namespace kalco::app {

NumbersTab::NumbersTab(Binder& binder, QWidget& page, const Drafts& drafts)
    : Tab(binder, page),
      drafts_(drafts),
      unsaved_(view<QLabel>("viewUnsavedNumbers")),
      would_write_(view<QLabel>("viewWouldWrite")) {
    for (int number = form_.lblNum.first(); number <= form_.lblNum.last(); ++number) {
        auto& cell = widget_of<NumberCellView>(form_.lblNum(number));
        QObject::connect(&cell, &NumberCellView::pressed, &page, [this](int pressed) { press(pressed); });
    }
    keep_place(would_write_);
    connect_lists();
}

void NumbersTab::connect_lists() {
    QScrollBar* const names = widget_of<RowsView>(form_.ListName).verticalScrollBar();
    QScrollBar* const numbers = widget_of<RowsView>(form_.ListNum).verticalScrollBar();
    QObject::connect(names, &QScrollBar::valueChanged, numbers, &QScrollBar::setValue);
    QObject::connect(numbers, &QScrollBar::valueChanged, names, &QScrollBar::setValue);
}

void NumbersTab::press(int number) {
    if (form_.lblNum(number).in_use() || form_.ListName.row() < 0) return;
    if (is_nation(TeamRow(form_.cboSQNum.row())) && number > most_national_number) return;
    const std::string digits = (number < 10 ? "0" : "") + std::to_string(number);
    binder_.act([&] { user::type(form_, form_.txtNumMod, digits); });
}

void NumbersTab::refresh() {
    follow_packing();
    if (form_.SSTab1.tab() != tab::numbers) return;
    show_board();
    unsaved_.setText(unsaved_mark(drafts_.numbers()));
    set_warning_ink(would_write_);
    const QString text = warning();
    would_write_.setText(text);
    would_write_.setVisible(!text.isEmpty());
}

void NumbersTab::show_board() {
    const int marked = qt_text(form_.txtNumMod.text()).toInt();
    const std::vector<QString> wearers = wearers_by_number();
    const bool nation = is_nation(TeamRow(form_.cboSQNum.row()));
    for (int number = form_.lblNum.first(); number <= form_.lblNum.last(); ++number) {
        auto& cell = widget_of<NumberCellView>(form_.lblNum(number));
        cell.show_marked(number == marked);
        cell.show_possible(!nation || number <= most_national_number);
        cell.show_wearer(wearers[static_cast<std::size_t>(number)]);
    }
}

std::vector<QString> NumbersTab::wearers_by_number() const {
    std::vector<QString> wearers(static_cast<std::size_t>(form_.lblNum.last()) + 1);
    for (int row = 0; row < form_.ListNum.count(); ++row) {
        const int number = qt_text(form_.ListNum.item(row)).toInt();
        if (form_.lblNum.has(number)) {
            wearers[static_cast<std::size_t>(number)] = qt_text(form_.ListName.item(row));
        }
    }
    return wearers;
}

void NumbersTab::follow_packing() {
    if (form_.PackedNumberText != prepared_ || (!prepared_.empty() && prepared_for_shown())) {
        prepared_team_ = qt_text(form_.cboSQNum.text());
    }
    prepared_ = form_.PackedNumberText;
}

bool NumbersTab::prepared_for_shown() const {
    const TeamRow row(form_.cboSQNum.row());
    if (!row.exists()) return false;
    try {
        const auto& entries = form_.ListNum.items();
        const std::string shown = is_nation(row) ? pack_national_numbers(entries) : pack_club_numbers(entries);
        return shown == form_.PackedNumberText;
    } catch (const RuntimeError&) {
        return false;
    }
}

QString NumbersTab::warning() const {
    if (!form_.cmdSaveNum.takes_input() || form_.cboSQNum.row() < 0 || prepared_for_shown()) return {};
    if (form_.PackedNumberText.empty()) return QStringLiteral("Non scriverebbe niente: prima «Modifica Numero»");
    return QStringLiteral("Scriverebbe gli ultimi numeri preparati (%1), non quelli mostrati").arg(prepared_team_);
}

}  // namespace kalco::app
