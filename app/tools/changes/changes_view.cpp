#include "app/tools/changes/changes_view.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <utility>

#include "app/tools/changes/change_words.h"

namespace kalco::app {
namespace {

/// Blank ticks the selected rows as the one with the keyboard, whichever column that is in.
class RowsTree : public QTreeView {
public:
    using QTreeView::QTreeView;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier) {
            return QTreeView::keyPressEvent(event);
        }
        auto& changes = static_cast<ChangesModel&>(*model());
        const bool ticked = currentIndex().siblingAtColumn(0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
        QModelIndexList rows = selectionModel()->selectedRows();
        if (rows.isEmpty()) rows << currentIndex().siblingAtColumn(0);
        for (const QModelIndex& row : rows) {
            changes.setData(row, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
        }
    }
};

void set_widths(QTreeView& rows) {
    const int character = rows.fontMetrics().averageCharWidth();
    rows.setColumnWidth(ChangesModel::owner, 32 * character);
    rows.setColumnWidth(ChangesModel::field, 22 * character);
    rows.setColumnWidth(ChangesModel::before, 30 * character);
}

}  // namespace

ChangesView::ChangesView(QWidget* parent)
    : QWidget(parent),
      filter_(new QLineEdit),
      all_(new QPushButton(QStringLiteral("&Tutti"))),
      none_(new QPushButton(QStringLiteral("&Nessuno"))),
      count_(new QLabel),
      rows_(new RowsTree) {
    auto* const label = new QLabel(QStringLiteral("&Filtra"));
    label->setBuddy(filter_);
    filter_->setObjectName(QStringLiteral("editFilter"));
    filter_->setPlaceholderText(QStringLiteral("Squadra, giocatore, campo o valore"));
    filter_->setClearButtonEnabled(true);
    all_->setObjectName(QStringLiteral("buttonAll"));
    all_->setToolTip(QStringLiteral("Sceglie tutti i campi che si vedono"));
    none_->setObjectName(QStringLiteral("buttonNone"));
    none_->setToolTip(QStringLiteral("Non sceglie nessuno dei campi che si vedono"));
    count_->setObjectName(QStringLiteral("labelCount"));
    for (QPushButton* const button : {all_, none_}) {
        button->setAutoDefault(false);
        button->hide();
    }
    auto* const line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(filter_, 1);
    line->addWidget(count_);
    line->addWidget(all_);
    line->addWidget(none_);

    rows_->setObjectName(QStringLiteral("listChanges"));
    rows_->setAccessibleName(QStringLiteral("Campi che cambiano"));
    rows_->setModel(&model_);
    rows_->setUniformRowHeights(true);
    rows_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    rows_->setAllColumnsShowFocus(true);
    rows_->setTabKeyNavigation(false);
    rows_->setAlternatingRowColors(true);
    rows_->header()->setStretchLastSection(true);
    rows_->header()->setSectionsMovable(false);
    set_widths(*rows_);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addLayout(line);
    column->addWidget(rows_, 1);
    connect(filter_, &QLineEdit::textChanged, this, &ChangesView::filter);
    connect(all_, &QPushButton::clicked, &model_, [this] { model_.tick_shown(true); });
    connect(none_, &QPushButton::clicked, &model_, [this] { model_.tick_shown(false); });
    connect(&model_, &ChangesModel::chosen_changed, this, &ChangesView::tell_count);
}

void ChangesView::offer_boxes(bool ticked) {
    boxes_ = true;
    model_.set_boxes(true, ticked);
    all_->show();
    none_->show();
}

void ChangesView::show_changes(std::vector<FieldChange> changes, const DiscBytes& disc) {
    model_.show_changes(std::move(changes), disc);
    rows_->expandAll();
}

void ChangesView::filter() {
    model_.filter(filter_->text());
    rows_->expandAll();
    tell_count();
}

void ChangesView::tell_count() {
    const int all = static_cast<int>(model_.changes().size());
    if (boxes_) {
        count_->setText(QStringLiteral("scelti %1 di %2").arg(model_.chosen_count()).arg(count_of_fields(all)));
    } else {
        const int shown = model_.shown_count();
        count_->setText(shown == all ? count_of_fields(all)
                                     : QStringLiteral("%1 di %2").arg(shown).arg(count_of_fields(all)));
    }
}

}  // namespace kalco::app
