#include "app/tools/sectors/bad_sectors_model.h"

#include <utility>

#include "disc/image/position.h"

namespace kalco::app {
namespace {

enum Column { number, time, position, fields, column_count };

QVariant alignment(int column) {
    return QVariant((column == fields ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
}

}  // namespace

void BadSectorsModel::show_sectors(std::vector<check::BadSector> sectors) {
    beginResetModel();
    sectors_ = std::move(sectors);
    endResetModel();
}

int BadSectorsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(sectors_.size());
}

int BadSectorsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : column_count;
}

QVariant BadSectorsModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) return alignment(index.column());
    if (role != Qt::DisplayRole) return {};
    const check::BadSector& sector = sectors_.at(static_cast<std::size_t>(index.row()));
    switch (index.column()) {
        case number: return QString::number(sector.sector);
        case time: return QString::fromStdString(disc_time(sector.sector));
        case position: return QString::number(sector.sector * sector_bytes + 1);
        default: return field_names(sector.bad);
    }
}

QVariant BadSectorsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole) return alignment(section);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case number: return QStringLiteral("Settore");
        case time: return QStringLiteral("Tempo");
        case position: return QStringLiteral("Posizione");
        default: return QStringLiteral("Campi sbagliati");
    }
}

QString field_names(const CheckFields& fields) {
    QStringList names;
    if (fields.edc) names << QStringLiteral("EDC");
    if (fields.p) names << QStringLiteral("P");
    if (fields.q) names << QStringLiteral("Q");
    return names.join(QStringLiteral(", "));
}

}  // namespace kalco::app
