#include "app/tabs/kickers_tab.h"

#include <QLabel>
#include <QLineEdit>

#include "app/text.h"
#include "app/widgets/rows_view.h"

namespace kalco::app {

KickersTab::KickersTab(Binder& binder, QWidget& page, const Drafts& drafts)
    : Tab(binder, page),
      drafts_(drafts),
      whose_(view<QLabel>("viewTakersOf")),
      unsaved_(view<QLabel>("viewUnsavedTakers")),
      teams_(widget_of<RowsView>(form_.listAtt)) {
    QFont bold = whose_.font();
    bold.setBold(true);
    whose_.setFont(bold);
    // What is typed over a name goes nowhere: the names look as labels do.
    for (int player = form_.txtNM.first(); player <= form_.txtNM.last(); ++player) {
        auto& name = widget_of<QLineEdit>(form_.txtNM(player));
        name.setFrame(false);
        QPalette colours;
        colours.setColor(QPalette::Base, Qt::transparent);
        name.setPalette(colours);
    }
    teams_.note = [this](int row) {
        RowNote note;
        note.marked = row == form_.cboSquadra.row();
        return note;
    };
}

void KickersTab::refresh() {
    const QString team = qt_text(form_.cboSquadra.text()).trimmed();
    whose_.setText(team.isEmpty() ? QStringLiteral("Scegli una squadra")
                                  : QStringLiteral("Tiratori e capitano di %1").arg(team));
    unsaved_.setText(unsaved_mark(drafts_.set_pieces()));
    teams_.viewport()->update();
}

}  // namespace kalco::app
