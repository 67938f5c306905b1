#include "app/tabs/transfers_tab.h"

#include <QLabel>

#include "app/tabs/player_summary.h"
#include "app/widgets/record_view.h"

namespace kalco::app {

TransfersTab::TransfersTab(Binder& binder, QWidget& page, const Drafts& drafts)
    : Tab(binder, page),
      drafts_(drafts),
      sold_(view<RecordView>("viewRecord1")),
      bought_(view<RecordView>("viewRecord2")),
      unsaved_first_(view<QLabel>("viewUnsavedFile1")),
      unsaved_second_(view<QLabel>("viewUnsavedFile2")) {}

void TransfersTab::refresh() {
    unsaved_first_.setText(unsaved_mark(drafts_.first_file()));
    unsaved_second_.setText(unsaved_mark(drafts_.second_file()));
    if (form_.SSTab1.tab() != tab::transfers) return;
    sold_.show_player(summary_of(form_.listTras1, form_.ListVende.row()));
    bought_.show_player(summary_of(form_.listTras2, form_.ListCompra.row()));
}

std::vector<CommandButton*> TransfersTab::saves() {
    std::vector<CommandButton*> changed;
    if (!drafts_.first_file().empty()) changed.push_back(&form_.cmdSave1);
    if (!drafts_.second_file().empty()) changed.push_back(&form_.cmdSave2);
    return changed;
}

}  // namespace kalco::app
