#include "app/tools/changes/changes_model.h"

#include <QFont>
#include <algorithm>
#include <map>
#include <utility>

#include "app/tools/captions.h"
#include "app/tools/changes/change_words.h"
#include "disc/roster.h"
#include "work/find.h"
#include "work/sheets/ids.h"

namespace kalco::app {
namespace {

/// The row of the players that has the same record on the disc; none but for two of them.
std::optional<int> row_of_same_record(int row) {
    static const int last = row_of_place(RosterPlace{shifted_team, roster_players - 1});
    if (row == last) return last + 1;
    if (row == last + 1) return last;
    return std::nullopt;
}

/// The row that has the change's very bytes too.
std::optional<int> twin_row(const FieldChange& change) {
    if (change.sheet->name != players_sheet) return std::nullopt;
    const auto row = row_of_same_record(change.row);
    if (!row) return std::nullopt;
    const auto one = change.column->place(change.row);
    const auto other = change.column->place(*row);
    if (!one || !other || !(one->bytes == other->bytes) || !(one->bits == other->bits)) return std::nullopt;
    return row;
}

QString folded_text(const QString& text) {
    return QString::fromStdString(folded(text.toStdString()));
}

}  // namespace

void ChangesModel::set_boxes(bool boxes, bool ticked) {
    boxes_ = boxes;
    ticked_first_ = ticked;
}

void ChangesModel::set_value_titles(const QString& first, const QString& second) {
    before_title_ = first;
    after_title_ = second;
}

void ChangesModel::show_changes(std::vector<FieldChange> changes, const DiscBytes& disc) {
    beginResetModel();
    changes_ = std::move(changes);
    disc_ = disc;
    folded_texts_.clear();
    std::set<Key> turned;
    ticked_.assign(changes_.size(), ticked_first_);
    for (std::size_t row = 0; row < changes_.size() && !turned_.empty(); ++row) {
        if (!turned_.contains(key_of(changes_[row]))) continue;
        turned.insert(key_of(changes_[row]));
        ticked_[row] = !ticked_first_;
    }
    turned_ = std::move(turned);
    group_rows();
    show_filtered();
    endResetModel();
    Q_EMIT chosen_changed();
}

void ChangesModel::clear() {
    beginResetModel();
    changes_.clear();
    ticked_.clear();
    turned_.clear();
    groups_.clear();
    shown_.clear();
    endResetModel();
    Q_EMIT chosen_changed();
}

void ChangesModel::group_rows() {
    groups_.clear();
    std::map<int, std::size_t> places;
    for (std::size_t row = 0; row < changes_.size(); ++row) {
        const int team = group_of(changes_[row]);
        const auto [place, added] = places.emplace(team, groups_.size());
        if (added) groups_.push_back({team, {}});
        groups_[place->second].rows.push_back(row);
    }
    std::sort(groups_.begin(), groups_.end(), [](const Group& a, const Group& b) { return a.team < b.team; });
}

void ChangesModel::filter(const QString& text) {
    if (text == filter_) return;
    beginResetModel();
    filter_ = text;
    show_filtered();
    endResetModel();
}

void ChangesModel::show_filtered() {
    const QStringList words = folded_text(filter_).split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty()) {
        shown_ = groups_;
        return;
    }
    shown_.clear();
    for (const Group& group : groups_) {
        Group shown{group.team, {}};
        for (const std::size_t row : group.rows) {
            if (fits(row, words)) shown.rows.push_back(row);
        }
        if (!shown.rows.empty()) shown_.push_back(std::move(shown));
    }
}

bool ChangesModel::fits(std::size_t row, const QStringList& words) {
    if (folded_texts_.empty()) folded_texts_.resize(changes_.size());
    QString& text = folded_texts_[row];
    if (text.isEmpty()) {
        QStringList parts{group_name(group_of(changes_[row]))};
        for (int column = owner; column < columns; ++column) parts << text_of(row, column);
        text = folded_text(parts.join(u'\n'));
    }
    return std::all_of(words.begin(), words.end(), [&](const QString& word) { return text.contains(word); });
}

void ChangesModel::set_ticked(std::size_t row, bool ticked) {
    const auto put = [&](std::size_t place) {
        ticked_[place] = ticked;
        if (ticked == ticked_first_) {
            turned_.erase(key_of(changes_[place]));
        } else {
            turned_.insert(key_of(changes_[place]));
        }
    };
    put(row);
    const auto twin = twin_row(changes_[row]);
    if (!twin) return;
    for (std::size_t place = 0; place < changes_.size(); ++place) {
        const FieldChange& change = changes_[place];
        const bool same = change.sheet == changes_[row].sheet && change.column == changes_[row].column;
        if (same && change.row == *twin) put(place);
    }
}

void ChangesModel::tick_shown(bool ticked) {
    for (const Group& group : shown_) {
        for (const std::size_t row : group.rows) set_ticked(row, ticked);
    }
    if (!shown_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::CheckStateRole});
    Q_EMIT chosen_changed();
}

void ChangesModel::toggle(const QModelIndex& index) {
    const QModelIndex box = index.siblingAtColumn(0);
    const bool ticked = data(box, Qt::CheckStateRole).toInt() == Qt::Checked;
    setData(box, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

std::vector<FieldChange> ChangesModel::chosen() const {
    std::vector<FieldChange> chosen;
    for (std::size_t row = 0; row < changes_.size(); ++row) {
        if (ticked_[row]) chosen.push_back(changes_[row]);
    }
    return chosen;
}

int ChangesModel::chosen_count() const {
    return static_cast<int>(std::count(ticked_.begin(), ticked_.end(), true));
}

int ChangesModel::shown_count() const {
    int count = 0;
    for (const Group& group : shown_) count += static_cast<int>(group.rows.size());
    return count;
}

QModelIndex ChangesModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || column < 0 || row >= rowCount(parent) || column >= columns) return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : quintptr{0});
}

QModelIndex ChangesModel::parent(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == 0) return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, quintptr{0});
}

int ChangesModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) return static_cast<int>(shown_.size());
    if (parent.internalId() != 0 || parent.column() != 0) return 0;
    return static_cast<int>(shown_.at(static_cast<std::size_t>(parent.row())).rows.size());
}

QString ChangesModel::text_of(std::size_t row, int column) const {
    const FieldChange& change = changes_.at(row);
    switch (column) {
        case owner: return owner_of(change, *disc_);
        case field: return caption_of(*change.sheet, *change.column);
        case before: return shown_value(change, change.before, *disc_);
        default: return shown_value(change, change.after, *disc_);
    }
}

Qt::CheckState ChangesModel::state_of(const Group& group) const {
    const auto ticked = std::count_if(group.rows.begin(), group.rows.end(), [&](auto row) { return ticked_[row]; });
    if (ticked == 0) return Qt::Unchecked;
    return std::cmp_equal(ticked, group.rows.size()) ? Qt::Checked : Qt::PartiallyChecked;
}

QVariant ChangesModel::data_of(const Group& group, int column, int role) const {
    if (role == Qt::CheckStateRole && column == owner && boxes_) return state_of(group);
    if (role == Qt::FontRole) {
        QFont font;
        font.setBold(column == owner);
        return font;
    }
    if (role != Qt::DisplayRole) return {};
    if (column == owner) return group_name(group.team);
    return column == field ? count_of_fields(static_cast<int>(group.rows.size())) : QVariant();
}

QVariant ChangesModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (index.internalId() == 0) return data_of(shown_.at(static_cast<std::size_t>(index.row())), index.column(), role);
    const Group& group = shown_.at(static_cast<std::size_t>(index.parent().row()));
    const std::size_t row = group.rows.at(static_cast<std::size_t>(index.row()));
    if (role == Qt::CheckStateRole && index.column() == owner && boxes_) {
        return ticked_[row] ? Qt::Checked : Qt::Unchecked;
    }
    if (role == Qt::ToolTipRole && twin_row(changes_[row])) {
        return QStringLiteral("L'ultimo giocatore della Tunisia e il primo dell'Egitto hanno gli stessi dati");
    }
    return role == Qt::DisplayRole ? text_of(row, index.column()) : QVariant();
}

bool ChangesModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !boxes_ || !index.isValid() || index.column() != owner) return false;
    const bool ticked = value.toInt() == Qt::Checked;
    const bool branch = index.internalId() == 0;
    const Group& group = shown_.at(static_cast<std::size_t>(branch ? index.row() : index.parent().row()));
    if (branch) {
        for (const std::size_t row : group.rows) set_ticked(row, ticked);
    } else {
        set_ticked(group.rows.at(static_cast<std::size_t>(index.row())), ticked);
    }
    Q_EMIT dataChanged(this->index(0, 0), this->index(rowCount() - 1, 0), {Qt::CheckStateRole});
    Q_EMIT chosen_changed();
    return true;
}

Qt::ItemFlags ChangesModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (boxes_ && index.column() == owner) flags |= Qt::ItemIsUserCheckable;
    if (index.isValid() && index.internalId() != 0) flags |= Qt::ItemNeverHasChildren;
    return flags;
}

QVariant ChangesModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    switch (section) {
        case owner: return QStringLiteral("Squadra");
        case field: return QStringLiteral("Campo");
        case before: return before_title_;
        default: return after_title_;
    }
}

}  // namespace kalco::app
