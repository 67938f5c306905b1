#include "app/tools/search/players_model.h"

#include <algorithm>
#include <utility>

#include "app/short_roles.h"
#include "app/text.h"
#include "work/report/skill_headings.h"

namespace kalco::app {
namespace {

std::size_t skill_of(int column) {
    return static_cast<std::size_t>(column - player_column::first_skill);
}

QString utf8_text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString short_role_of(const std::string& role) {
    const auto* const found = std::ranges::find(role_texts, role);
    if (found == role_texts.end()) return QString::fromStdString(role);
    return qt_text(short_roles.at(static_cast<std::size_t>(found - role_texts.begin())));
}

/// What the cell leaves out.
QString hint_of(const Report& report, const ReportPlayer& player, int column) {
    if (column == player_column::role) {
        return QString::fromStdString(player.role) + (player.out_of_role ? QStringLiteral(", fuori ruolo") : QString());
    }
    if (column != player_column::team || player.clubs.empty()) return {};
    QStringList clubs;
    for (const Team club : player.clubs) clubs << title_of(report, club);
    return QStringLiteral("Nei club: ") + clubs.join(QStringLiteral(", "));
}

/// What is looked for is high, but for names and the like.
bool begins_falling(int column) {
    return player_column::is_skill(column) || column == player_column::height || column == player_column::cost;
}

}  // namespace

void PlayersModel::set_report(Report report) {
    beginResetModel();
    search_.set_report(std::move(report));
    endResetModel();
    const auto players = static_cast<int>(this->report().players.size());
    std::erase_if(ticked_, [players](int player) { return player >= players; });
    Q_EMIT ticks_changed();
}

void PlayersModel::set_wish(const PlayerWish& wish) {
    beginResetModel();
    search_.set_wish(wish);
    endResetModel();
}

void PlayersModel::sort(int column, Qt::SortOrder order) {
    beginResetModel();
    if (column < 0) {
        search_.unsort();
    } else {
        search_.sort(column, order == Qt::DescendingOrder);
    }
    endResetModel();
}

int PlayersModel::player_in(int row) const {
    const std::vector<int>& shown = search_.shown();
    return row >= 0 && row < static_cast<int>(shown.size()) ? shown[static_cast<std::size_t>(row)] : -1;
}

int PlayersModel::row_of(int player) const {
    const std::vector<int>& shown = search_.shown();
    const auto found = std::ranges::find(shown, player);
    return found == shown.end() ? -1 : static_cast<int>(found - shown.begin());
}

bool PlayersModel::is_ticked(int player) const {
    return std::ranges::find(ticked_, player) != ticked_.end();
}

bool PlayersModel::set_ticked(int player, bool ticked) {
    if (player < 0 || ticked == is_ticked(player)) return true;
    if (ticked && ticked_.size() == most_ticked) {
        Q_EMIT too_many_ticks();
        return false;
    }
    if (ticked) {
        ticked_.push_back(player);
    } else {
        std::erase(ticked_, player);
    }
    const QModelIndex cell = index(row_of(player), player_column::name);
    if (cell.isValid()) Q_EMIT dataChanged(cell, cell, {Qt::CheckStateRole});
    Q_EMIT ticks_changed();
    return true;
}

void PlayersModel::untick_all() {
    for (const int player : std::vector(ticked_)) set_ticked(player, false);
}

int PlayersModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(search_.shown().size());
}

int PlayersModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : player_column::count;
}

QVariant PlayersModel::data(const QModelIndex& index, int role) const {
    const int place = player_in(index.row());
    if (place < 0) return {};
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole: return text_of(report(), player(place), column);
        case Qt::ToolTipRole: return hint_of(report(), player(place), column);
        case Qt::AccessibleTextRole:
            return column == player_column::role ? hint_of(report(), player(place), column)
                                                 : text_of(report(), player(place), column);
        case Qt::TextAlignmentRole:
            return QVariant(column <= player_column::team ? Qt::AlignLeft | Qt::AlignVCenter
                                                          : Qt::AlignHCenter | Qt::AlignVCenter);
        case Qt::CheckStateRole:
            if (column != player_column::name) return {};
            return is_ticked(place) ? Qt::Checked : Qt::Unchecked;
        default: return {};
    }
}

bool PlayersModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || index.column() != player_column::name) return false;
    return set_ticked(player_in(index.row()), value.value<Qt::CheckState>() == Qt::Checked);
}

Qt::ItemFlags PlayersModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == player_column::name ? flags | Qt::ItemIsUserCheckable : flags;
}

QVariant PlayersModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    switch (role) {
        case Qt::DisplayRole:
            if (!player_column::is_skill(section)) return caption_of(section);
            return utf8_text(skill_headings.at(skill_of(section)).shown);
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole: return caption_of(section);
        case Qt::InitialSortOrderRole: return begins_falling(section) ? Qt::DescendingOrder : Qt::AscendingOrder;
        default: return {};
    }
}

QString caption_of(int column) {
    using enum player_column::Column;
    if (player_column::is_skill(column)) return qt_text(skill_bits.at(skill_of(column)).caption);
    switch (column) {
        case name: return QStringLiteral("Giocatore");
        case team: return QStringLiteral("Squadra");
        case role: return qt_text(role_bits.caption);
        case age: return qt_text(age_bits.caption);
        case height: return qt_text(height_bits.caption);
        case foot: return QStringLiteral("Piede");
        case cost: return QStringLiteral("Costo");
        default: return {};
    }
}

QString text_of(const Report& report, const ReportPlayer& player, int column) {
    using enum player_column::Column;
    if (player_column::is_skill(column)) return QString::number(player.skills.at(skill_of(column)));
    switch (column) {
        case name: return QString::fromStdString(player.name);
        case team: return title_of(report, player.team);
        case role: return short_role_of(player.role);
        case age: return QString::fromStdString(player.age);
        case height: return QString::fromStdString(player.height);
        case foot: return QString::fromStdString(player.foot);
        case cost: return QString::fromStdString(player.cost);
        default: return {};
    }
}

QString title_of(const Report& report, Team team) {
    if (team == default_list) return QStringLiteral("No-Contact");
    return QString::fromStdString(report.teams[team.place()].title);
}

}  // namespace kalco::app
