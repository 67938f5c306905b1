#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "app/tools/search/player_columns.h"

namespace kalco::app {

class PlayersModel;

/// The players with a tick side by side: a column each, a row for the portrait and for each value. The best value of a
/// row is bold and has a star.
class ComparisonModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The rows are the table's columns, and the portrait stands for the name, which is the heading.
    static constexpr int portrait_row = player_column::name;
    static constexpr int portrait_side = 72;

    explicit ComparisonModel(const PlayersModel& players, QObject* parent = nullptr);

    /// The player in a column; -1 for none.
    int player_in(int column) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void look();
    QString text(const QModelIndex& index) const;
    bool is_best(const QModelIndex& index) const;

    const PlayersModel& players_;
    std::vector<int> shown_;
};

}  // namespace kalco::app
