#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "work/check/image_check.h"

namespace kalco::app {

/// A row for each sector that does not fit: its number, where it stands on the disc's clock and in the file, and which
/// of its fields are wrong.
class BadSectorsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void show_sectors(std::vector<check::BadSector> sectors);
    const std::vector<check::BadSector>& sectors() const { return sectors_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<check::BadSector> sectors_;
};

/// "EDC, P, Q".
QString field_names(const CheckFields& fields);

}  // namespace kalco::app
