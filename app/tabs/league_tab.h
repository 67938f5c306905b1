#pragma once

#include "app/tabs/tab.h"
#include "app/widgets/length_counter.h"

class QLabel;
class QProgressBar;

namespace kalco::app {

class RowsView;

/// Whom the club links to now, the nationalities and marks in the list of the pool, and how many players are picked.
class LeagueTab : public Tab {
public:
    LeagueTab(Binder& binder, QWidget& page);

    void refresh() override;
    std::vector<CommandButton*> saves() override { return {&form_.cmdSaveNC}; }

private:
    void show_picks();
    void show_lengths();
    QString links_of_club() const;

    RowsView& pool_;
    QProgressBar& picks_;
    QLabel& too_few_;
    QLabel& links_;
    LengthCounter long_name_;
    LengthCounter short_name_;
};

}  // namespace kalco::app
