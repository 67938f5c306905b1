#include "app/tools/search/search_window.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <utility>

#include "app/text.h"
#include "app/tools/search/player_delegate.h"
#include "app/tools/search/wish_bar.h"
#include "app/tools/words.h"
#include "ui_search_window.h"
#include "work/sheets/ids.h"
#include "work/sheets/sheets.h"

namespace kalco::app {
namespace {

/// The portraits stand in the middle of their columns.
class ComparisonDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->decorationPosition = QStyleOptionViewItem::Top;
    }
};

/// " · 2 nel confronto".
QString ticked_text(std::size_t ticked) {
    if (ticked == 0) return {};
    if (ticked == 1) return QStringLiteral(" · 1 nel confronto: spuntane un altro");
    return QStringLiteral(" · %1 nel confronto").arg(ticked);
}

}  // namespace

SearchWindow::SearchWindow(Desk& desk)
    : QDialog(nullptr, Qt::Window),
      ui_(std::make_unique<Ui::SearchWindow>()),
      desk_(desk) {
    ui_->setupUi(this);
    build_table();
    build_comparison();
    build_actions();
    connect(ui_->wishes, &WishBar::changed, this, &SearchWindow::filter);
    connect(ui_->wishes, &WishBar::key_for_rows, this,
            [this](QKeyEvent* key) { QCoreApplication::sendEvent(ui_->tablePlayers, key); });
    connect(ui_->buttonGo, &QPushButton::clicked, this, &SearchWindow::go);
    connect(ui_->buttonClose, &QPushButton::clicked, this, &SearchWindow::reject);
    connect(&desk_, &Desk::image_changed, this, &SearchWindow::read);
    read();
    fit_columns();
}

SearchWindow::~SearchWindow() = default;

void SearchWindow::build_table() {
    QTableView& table = *ui_->tablePlayers;
    table.setModel(&players_);
    auto* const painter = new PlayerDelegate(players_, this);
    table.setItemDelegate(painter);
    connect(painter, &PlayerDelegate::frame_wanted, table.viewport(), qOverload<>(&QWidget::update));
    QHeaderView& rows = *table.verticalHeader();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(std::max(PlayerDelegate::portrait_side + 2, fontMetrics().height() + 8));
    QHeaderView& header = *table.horizontalHeader();
    header.setHighlightSections(false);
    header.setMinimumSectionSize(0);
    header.setSectionsClickable(true);
    header.setSortIndicator(-1, Qt::AscendingOrder);
    header.setSortIndicatorShown(true);
    header.setSortIndicatorClearable(true);
    connect(&header, &QHeaderView::sortIndicatorChanged, this, [this, &header](int column, Qt::SortOrder order) {
        // The arrow must not cover the heading.
        if (column >= 0)
            header.resizeSection(column, std::max(header.sectionSize(column), header.sectionSizeHint(column)));
        change_rows(Scroll::to_chosen, [&] { players_.sort(column, order); });
    });
    connect(&table, &QTableView::doubleClicked, this, &SearchWindow::go);
    connect(table.selectionModel(), &QItemSelectionModel::currentChanged, this, &SearchWindow::name_sorting);
}

void SearchWindow::build_comparison() {
    QTableView& table = *ui_->tableComparison;
    table.setModel(&comparison_);
    table.setItemDelegate(new ComparisonDelegate(this));
    table.setIconSize({ComparisonModel::portrait_side, ComparisonModel::portrait_side});
    QHeaderView& rows = *table.verticalHeader();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(fontMetrics().height() + 4);
    rows.resizeSection(ComparisonModel::portrait_row, ComparisonModel::portrait_side + 8);
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui_->splitter->setStretchFactor(0, 1);
    ui_->splitter->setStretchFactor(1, 0);
    connect(&table, &QTableView::doubleClicked, this, &SearchWindow::go);
    connect(ui_->buttonEmpty, &QPushButton::clicked, &players_, &PlayersModel::untick_all);
    connect(&players_, &PlayersModel::ticks_changed, this, &SearchWindow::show_ticks);
    connect(&players_, &PlayersModel::too_many_ticks, this, &SearchWindow::refuse_tick);
}

void SearchWindow::build_actions() {
    const auto add = [this](QWidget& widget, const QString& text, const QKeySequence& key, auto step) {
        auto* const action = new QAction(text, &widget);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, step);
        widget.addAction(action);
        return action;
    };
    add(*ui_->tablePlayers, QStringLiteral("Vai al giocatore\tInvio"), {}, &SearchWindow::go);
    add(*ui_->tablePlayers, QStringLiteral("Nel confronto"), Qt::Key_Space, &SearchWindow::toggle_tick);
    sorting_ = add(*ui_->tablePlayers, {}, QStringLiteral("Ctrl+D"), &SearchWindow::sort_by_chosen_column);
    add(*ui_->tableComparison, QStringLiteral("Vai al giocatore\tInvio"), {}, &SearchWindow::go);
    add(*ui_->tableComparison, QStringLiteral("Togli dal confronto"), QKeySequence::Delete,
        &SearchWindow::take_from_comparison);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, &SearchWindow::take_name);
    name_sorting();
}

void SearchWindow::fit_columns() {
    QTableView& table = *ui_->tablePlayers;
    QHeaderView& header = *table.horizontalHeader();
    const QFontMetrics metrics(table.fontMetrics());
    const int gap = metrics.averageCharWidth() * 2;
    const auto widest = [&](int column) {
        int width = 0;
        const auto fit = [&](const QString& text) { width = std::max(width, metrics.horizontalAdvance(text) + gap); };
        fit(players_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        if (column == player_column::team) {
            for (const ReportTeam& team : players_.report().teams) fit(title_of(players_.report(), team.team));
        } else if (column == player_column::foot) {
            for (const std::string_view foot : foot_texts) fit(qt_text(foot));
        } else if (column == player_column::name) {
            fit(QString(player_name_bytes, u'N'));
            width += PlayerDelegate::portrait_side + 2 * gap + table.style()->pixelMetric(QStyle::PM_IndicatorWidth);
        }
        return width;
    };
    int width = table.verticalScrollBar()->sizeHint().width() + 2 * table.frameWidth();
    for (int column = 0; column < player_column::count; ++column) {
        header.resizeSection(column, widest(column));
        width += header.sectionSize(column);
    }
    const QMargins margins = layout()->contentsMargins();
    constexpr QSize frame(16, 48);  // What a window manager may draw around it.
    resize(QSize(width + margins.left() + margins.right(), 720).boundedTo(screen()->availableSize() - frame));
}

void SearchWindow::read() {
    Report report;
    trouble_.clear();
    try {
        if (const Image* const image = desk_.image()) {
            report = read_rosters(read_sheets(*image));
        } else {
            trouble_ = QStringLiteral("Nessuna immagine è aperta.");
        }
    } catch (const std::exception& failure) {
        trouble_ = QStringLiteral("L'immagine non si può leggere: %1.").arg(words_of(failure));
    }
    change_rows(Scroll::stay, [&] { players_.set_report(std::move(report)); });
    ui_->wishes->name_teams(players_.report());
}

void SearchWindow::filter() {
    change_rows(Scroll::to_chosen, [&] { players_.set_wish(ui_->wishes->wish()); });
}

void SearchWindow::take_name() {
    ui_->wishes->take_name();
}

void SearchWindow::change_rows(Scroll scroll, const std::function<void()>& change) {
    QTableView& table = *ui_->tablePlayers;
    const QModelIndex chosen = table.currentIndex();
    const int player = players_.player_in(chosen.row());
    const int scrolled = table.verticalScrollBar()->value();
    change();
    table.doItemsLayout();
    choose(player, chosen);
    if (scroll == Scroll::stay) {
        table.verticalScrollBar()->setValue(scrolled);
    } else if (table.currentIndex().isValid()) {
        table.scrollTo(players_.index(table.currentIndex().row(), player_column::name));
    } else {
        table.scrollToTop();
    }
    show_count();
}

void SearchWindow::choose(int player, const QModelIndex& before) {
    const int row = player < 0 ? -1 : players_.row_of(player);
    ui_->tablePlayers->selectionModel()->setCurrentIndex(players_.index(row, std::max(before.column(), 0)),
                                                         QItemSelectionModel::ClearAndSelect |
                                                             QItemSelectionModel::Rows);
}

void SearchWindow::show_ticks() {
    const auto players = static_cast<int>(players_.ticked().size());
    ui_->pageComparison->setVisible(players > 1);
    show_count();
    if (players < 2 || players == std::exchange(compared_, players)) return;
    const int column = fontMetrics().horizontalAdvance(qt_text(role_rows[3])) + 16;
    const int wide = ui_->tableComparison->verticalHeader()->sizeHint().width() + players * column;
    const int all = ui_->splitter->width();
    ui_->splitter->setSizes({all - wide, std::min(wide, all * 3 / 5)});
}

void SearchWindow::show_count() {
    const int shown = players_.rowCount();
    ui_->buttonGo->setEnabled(shown > 0);
    if (!trouble_.isEmpty()) return ui_->labelCount->show_text(trouble_);
    ui_->labelCount->show_text(QStringLiteral("%1 di %2 giocatori").arg(shown).arg(players_.report().players.size()) +
                               ticked_text(players_.ticked().size()));
}

void SearchWindow::refuse_tick() {
    ui_->labelCount->show_text(
        QStringLiteral("Si confrontano al più %1 giocatori: togline prima uno.").arg(PlayersModel::most_ticked));
}

void SearchWindow::name_sorting() {
    const int column = std::max(ui_->tablePlayers->currentIndex().column(), 0);
    sorting_->setText(QStringLiteral("Ordina per ") + caption_of(column));
}

int SearchWindow::chosen_player() const {
    if (ui_->tableComparison->hasFocus()) {
        return comparison_.player_in(ui_->tableComparison->currentIndex().column());
    }
    return players_.player_in(std::max(ui_->tablePlayers->currentIndex().row(), 0));
}

void SearchWindow::sort_by_chosen_column() {
    QHeaderView& header = *ui_->tablePlayers->horizontalHeader();
    const int column = std::max(ui_->tablePlayers->currentIndex().column(), 0);
    const QVariant first = players_.headerData(column, Qt::Horizontal, Qt::InitialSortOrderRole);
    auto order = static_cast<Qt::SortOrder>(first.toInt());
    if (header.sortIndicatorSection() == column && header.sortIndicatorOrder() == order) {
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    }
    header.setSortIndicator(column, order);
}

void SearchWindow::toggle_tick() {
    const QModelIndex cell = players_.index(ui_->tablePlayers->currentIndex().row(), player_column::name);
    const bool ticked = cell.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    players_.setData(cell, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

void SearchWindow::take_from_comparison() {
    players_.set_ticked(comparison_.player_in(ui_->tableComparison->currentIndex().column()), false);
}

void SearchWindow::go() {
    const int player = chosen_player();
    if (player < 0) return;
    if (players_.row_of(player) >= 0) choose(player, ui_->tablePlayers->currentIndex());
    desk_.show_player(place_of_row(player));
}

}  // namespace kalco::app
