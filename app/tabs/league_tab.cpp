#include "app/tabs/league_tab.h"

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>

#include "app/readable.h"
#include "app/tabs/club_links.h"
#include "app/tabs/player_summary.h"
#include "app/widgets/rows_view.h"
#include "disc/roster.h"
#include "disc/team_names.h"
#include "disc/teams.h"
#include "editor/teams/names.h"

namespace kalco::app {

LeagueTab::LeagueTab(Binder& binder, QWidget& page)
    : Tab(binder, page),
      pool_(widget_of<RowsView>(form_.listNC)),
      picks_(view<QProgressBar>("viewPicks")),
      too_few_(view<QLabel>("viewTooFew")),
      links_(view<QLabel>("viewLinks")),
      long_name_(widget_of<QLineEdit>(form_.txtNmLgML)),
      short_name_(widget_of<QLineEdit>(form_.txtNmShML)) {
    pool_.note = pool_notes(form_);
}

void LeagueTab::refresh() {
    if (form_.SSTab1.tab() != tab::league) return;
    show_picks();
    show_lengths();
    links_.setText(links_of_club());
}

void LeagueTab::show_picks() {
    const int picked = form_.listAppNameNC.count();
    // It would paint itself at once, and all else that is to be painted with it.
    picks_.setUpdatesEnabled(false);
    picks_.setValue(picked);
    picks_.setUpdatesEnabled(true);
    pool_.viewport()->update();
    const bool too_few = form_.cmdImpNC.enabled() && picked < roster_players;
    set_warning_ink(too_few_);
    // The links were made of the 23 that were picked first.
    too_few_.setText(too_few ? QStringLiteral("Solo %1 di 23: i link del club restano quelli di prima. Premi New e "
                                              "scegli di nuovo.")
                                   .arg(picked)
                             : QString());
    too_few_.setVisible(too_few);
}

void LeagueTab::show_lengths() {
    const int club = form_.listDefault.row();
    long_name_.show_limit(club >= 0 ? full_width_letters(team_of(Club(club))) : 0);
    short_name_.show_limit(club >= 0 ? short_name_bytes : 0);
}

QString LeagueTab::links_of_club() const {
    const int club = form_.listDefault.row();
    if (club < 0) return QStringLiteral("Scegli un club per vedere con chi gioca ora");
    return links_told(form_, Club(club));
}

}  // namespace kalco::app
