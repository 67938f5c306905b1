#include "app/tools/sheets/mistakes_model.h"

#include <utility>

#include "app/tools/captions.h"
#include "app/tools/words.h"

namespace kalco::app {
namespace {

enum Column { row, column, what, columns };

}  // namespace

void MistakesModel::show_mistakes(std::vector<TableMistake> mistakes, const Sheet* sheet) {
    beginResetModel();
    mistakes_ = std::move(mistakes);
    sheet_ = sheet;
    endResetModel();
}

int MistakesModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(mistakes_.size());
}

int MistakesModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant MistakesModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole && index.column() == row) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    const TableMistake& mistake = mistakes_.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::ToolTipRole && index.column() == what) return italian(mistake.what);
    if (role != Qt::DisplayRole) return {};
    switch (index.column()) {
        case row: return mistake.row > 0 ? QString::number(mistake.row) : QString();
        case column: return caption_of_column(sheet_, mistake.column);
        default: return italian(mistake.what);
    }
}

QVariant MistakesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case row: return QStringLiteral("Riga");
        case column: return QStringLiteral("Colonna");
        default: return QStringLiteral("Che cosa non va");
    }
}

}  // namespace kalco::app
