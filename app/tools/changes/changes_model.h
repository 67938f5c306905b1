#pragma once

#include <QAbstractItemModel>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "work/change.h"

namespace kalco::app {

/// Changes of fields, grouped by team: a branch for each team, a row for each field with the old and the new value.
/// Rows may be ticked, one by one or by branches, and filtered by words.
class ChangesModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { owner, field, before, after, columns };

    using QAbstractItemModel::QAbstractItemModel;

    /// Whether rows have boxes to tick, and whether they are ticked at first.
    void set_boxes(bool boxes, bool ticked);
    void set_value_titles(const QString& first, const QString& second);

    /// `disc` gives the names of players. What the user has ticked or not stays so, where the same field is there
    /// again.
    void show_changes(std::vector<FieldChange> changes, const DiscBytes& disc);
    void clear();
    /// Shows the rows that have all words of the text, in any of their columns.
    void filter(const QString& text);
    /// Ticks all rows that are shown, or none of them.
    void tick_shown(bool ticked);
    void toggle(const QModelIndex& index);

    const std::vector<FieldChange>& changes() const { return changes_; }
    std::vector<FieldChange> chosen() const;
    int chosen_count() const;
    int shown_count() const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& /*parent*/ = {}) const override { return columns; }
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// Other rows are ticked, or there are other rows.
    void chosen_changed();

private:
    struct Group {
        int team = 0;
        std::vector<std::size_t> rows;  ///< Among the changes.
    };
    using Key = std::tuple<const Sheet*, int, const SheetColumn*>;

    static Key key_of(const FieldChange& change) { return {change.sheet, change.row, change.column}; }
    void group_rows();
    void show_filtered();
    /// Also the row of the same record in the other team that has it: both are one field of the disc.
    void set_ticked(std::size_t row, bool ticked);
    QString text_of(std::size_t row, int column) const;
    bool fits(std::size_t row, const QStringList& words);
    Qt::CheckState state_of(const Group& group) const;
    QVariant data_of(const Group& group, int column, int role) const;

    std::vector<FieldChange> changes_;
    std::optional<DiscBytes> disc_;
    std::vector<Group> groups_;
    std::vector<Group> shown_;
    std::vector<bool> ticked_;           ///< By change.
    std::set<Key> turned_;               ///< What the user has ticked or not, other than at first.
    std::vector<QString> folded_texts_;  ///< By change; empty until a filter needs it.
    QString filter_;
    QString before_title_ = QStringLiteral("Prima");
    QString after_title_ = QStringLiteral("Dopo");
    bool boxes_ = false;
    bool ticked_first_ = false;
};

}  // namespace kalco::app
