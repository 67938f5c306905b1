#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "work/table.h"

namespace kalco {
struct Sheet;
}

namespace kalco::app {

/// A row for each mistake of a file of sheets: where it is, and what.
class MistakesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// `sheet` is the one that the columns are of; nullptr when there are several.
    void show_mistakes(std::vector<TableMistake> mistakes, const Sheet* sheet);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<TableMistake> mistakes_;
    const Sheet* sheet_ = nullptr;
};

}  // namespace kalco::app
