#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "app/tools/search/player_search.h"

namespace kalco::app {

/// The players that the search shows, one a row, each with a tick for the comparison.
class PlayersModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// As many are compared at once.
    static constexpr std::size_t most_ticked = 3;

    using QAbstractTableModel::QAbstractTableModel;

    void set_report(Report report);
    void set_wish(const PlayerWish& wish);
    /// A column below 0 gives the disc's order.
    void sort(int column, Qt::SortOrder order) override;

    const Report& report() const { return search_.report(); }
    const ReportPlayer& player(int player) const { return report().players[static_cast<std::size_t>(player)]; }
    /// The player (a row of Report::players) in a row of the table, and the row of a player; -1 for none.
    int player_in(int row) const;
    int row_of(int player) const;

    const std::vector<int>& ticked() const { return ticked_; }
    /// False when too many have a tick already.
    bool set_ticked(int player, bool ticked);
    void untick_all();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void ticks_changed();
    /// A tick that set_ticked refused.
    void too_many_ticks();

private:
    bool is_ticked(int player) const;

    PlayerSearch search_;
    std::vector<int> ticked_;  ///< In the order in which they were chosen.
};

/// The caption of a column in full, as on the editor's first tab.
QString caption_of(int column);
/// What a column shows of a player.
QString text_of(const Report& report, const ReportPlayer& player, int column);
/// The title of a team; that of the pool for the default list.
QString title_of(const Report& report, Team team);

}  // namespace kalco::app
