#include "app/tools/sheets/mistakes_model.h"

#include <utility>

#include "app/tools/captions.h"
#include "app/tools/words.h"

namespace kalco::app {
namespace {

enum MistakeColumn { of_row, of_column, of_text, mistake_columns };

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
    return parent.isValid() ? 0 : mistake_columns;
}

QVariant MistakesModel::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole && index.column() == of_row) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    const TableMistake& mistake = mistakes_.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::ToolTipRole && index.column() == of_text) return italian(mistake.what);
    if (role != Qt::DisplayRole) return {};
    switch (index.column()) {
        case of_row: return mistake.row > 0 ? QString::number(mistake.row) : QString();
        case of_column: return caption_of_column(sheet_, mistake.column);
        default: return italian(mistake.what);
    }
}

QVariant MistakesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case of_row: return QStringLiteral("Riga");
        case of_column: return QStringLiteral("Colonna");
        default: return QStringLiteral("Che cosa non va");
    }
}

}  // namespace kalco::app
