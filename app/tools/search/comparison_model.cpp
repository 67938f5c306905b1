#include "app/tools/search/comparison_model.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <algorithm>
#include <optional>

#include "app/tools/search/players_model.h"
#include "app/widgets/portrait_view.h"

namespace kalco::app {
namespace {

/// What makes one value better than another: the taller and the more able, the younger and the cheaper.
enum class Better { none, more, less };

Better better(int column) {
    using enum player_column::Column;
    if (player_column::is_skill(column) || column == height) return Better::more;
    return column == age || column == cost ? Better::less : Better::none;
}

}  // namespace

ComparisonModel::ComparisonModel(const PlayersModel& players, QObject* parent)
    : QAbstractTableModel(parent),
      players_(players) {
    connect(&players, &PlayersModel::ticks_changed, this, &ComparisonModel::look);
}

void ComparisonModel::look() {
    if (shown_ == players_.ticked() && !shown_.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
        return;
    }
    beginResetModel();
    shown_ = players_.ticked();
    endResetModel();
}

int ComparisonModel::player_in(int column) const {
    return column >= 0 && column < static_cast<int>(shown_.size()) ? shown_[static_cast<std::size_t>(column)] : -1;
}

int ComparisonModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : player_column::count;
}

int ComparisonModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QString ComparisonModel::text(const QModelIndex& index) const {
    const ReportPlayer& player = players_.player(player_in(index.column()));
    return index.row() == player_column::role ? QString::fromStdString(player.role)
                                              : text_of(players_.report(), player, index.row());
}

bool ComparisonModel::is_best(const QModelIndex& index) const {
    const Better kind = better(index.row());
    if (kind == Better::none || shown_.size() < 2) return false;
    const auto value = [&](int column) -> std::optional<int> {
        bool is_number = false;
        const int number = text(this->index(index.row(), column)).toInt(&is_number);
        return is_number ? std::optional(number) : std::nullopt;
    };
    const auto own = value(index.column());
    if (!own) return false;
    bool worse = false;
    for (int column = 0; column < columnCount(); ++column) {
        const auto other = value(column);
        if (!other) continue;
        if (kind == Better::more ? *other > *own : *other < *own) return false;
        worse = worse || *other != *own;
    }
    return worse;
}

QVariant ComparisonModel::data(const QModelIndex& index, int role) const {
    if (player_in(index.column()) < 0) return {};
    if (index.row() == portrait_row) {
        if (role == Qt::AccessibleTextRole) return QStringLiteral("Ritratto");
        if (role != Qt::DecorationRole) return {};
        const QPixmap face =
            portrait_picture(players_.player(player_in(index.column())).looks, portrait_side, qApp->devicePixelRatio());
        QIcon icon(face);
        icon.addPixmap(face, QIcon::Selected);  // The style would tint it.
        return icon;
    }
    switch (role) {
        case Qt::DisplayRole: return is_best(index) ? QStringLiteral("★ ") + text(index) : text(index);
        case Qt::AccessibleTextRole:
            return is_best(index) ? text(index) + QStringLiteral(", il migliore") : text(index);
        case Qt::ToolTipRole: return text(index);
        case Qt::TextAlignmentRole: return QVariant(Qt::AlignHCenter | Qt::AlignVCenter);
        case Qt::FontRole: {
            QFont font;
            if (is_best(index)) font.setBold(true);
            return font;
        }
        default: return {};
    }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Vertical) {
        return section == portrait_row ? QString() : caption_of(section);
    }
    const int player = player_in(section);
    return player < 0 ? QString() : QString::fromStdString(players_.player(player).name);
}

}  // namespace kalco::app
