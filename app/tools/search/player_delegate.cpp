#include "app/tools/search/player_delegate.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>

#include "app/readable.h"
#include "app/widgets/pick_combo.h"
#include "app/widgets/portrait_view.h"

namespace kalco::app {
namespace {

constexpr int margin = 4;
constexpr int left_text = Qt::AlignLeft | Qt::AlignVCenter | int{Qt::TextSingleLine};
constexpr int centred_text = Qt::AlignCenter | int{Qt::TextSingleLine};

void paint_bar(QPainter& painter, const QRect& cell, int skill) {
    constexpr int thickness = 3;
    const double level = (skill - lowest_skill) / static_cast<double>(highest_skill - lowest_skill);
    const int width = qRound((cell.width() - 2 * margin) * (0.125 + 0.875 * level));
    painter.fillRect(cell.left() + margin, cell.bottom() - thickness - 1, width, thickness, skill_colour(level));
}

}  // namespace

PlayerDelegate::PlayerDelegate(const PlayersModel& model, QObject* parent)
    : QStyledItemDelegate(parent),
      model_(model),
      next_frame_(new QTimer(this)) {
    next_frame_->setSingleShot(true);
    connect(next_frame_, &QTimer::timeout, this, [this] {
        spent_ns_ = 0;
        Q_EMIT frame_wanted();
    });
}

void PlayerDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (index.column() != player_column::name) return;
    // Room for the portrait, which is painted apart: the style would tint it in a selected row.
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = QSize(portrait_side, portrait_side);
}

void PlayerDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (model_.player_in(index.row()) < 0) return;
    if (index.column() == player_column::name) return paint_name(*painter, option, index);
    paint_cell(*painter, option, index);
}

void PlayerDelegate::paint_name(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem styled = option;
    initStyleOption(&styled, index);
    const QStyle& style = option.widget == nullptr ? *QApplication::style() : *option.widget->style();
    style.drawControl(QStyle::CE_ItemViewItem, &styled, &painter, option.widget);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QColor ink = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    const QColor ground = option.palette.color(selected ? QPalette::Highlight : QPalette::Base);
    // On a dark desktop the style's own frame can't be seen.
    painter.setPen(faint(ink, ground, 0.4));
    painter.drawRect(
        style.subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &styled, styled.widget).adjusted(0, 0, -1, -1));
    paint_portrait(painter, style.subElementRect(QStyle::SE_ItemViewItemDecoration, &styled, styled.widget).topLeft(),
                   model_.player_in(index.row()));
}

void PlayerDelegate::paint_portrait(QPainter& painter, QPoint place, int player) const {
    constexpr qint64 most_ns = 3'000'000;
    const bool is_new = !drawn_.contains(player);
    if (is_new && !next_frame_->isActive()) next_frame_->start(0);
    if (is_new && spent_ns_ > most_ns) return;
    QElapsedTimer clock;
    clock.start();
    const Looks& looks = model_.player(player).looks;
    painter.drawPixmap(place, portrait_picture(looks, portrait_side, painter.device()->devicePixelRatioF()));
    if (!is_new) return;
    spent_ns_ += clock.nsecsElapsed();
    drawn_.insert(player);
}

void PlayerDelegate::paint_cell(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int column = index.column();
    const ReportPlayer& player = model_.player(model_.player_in(index.row()));
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    if (selected) painter.fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
    painter.setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    const QRect area = option.rect.adjusted(margin, 0, -margin, 0);
    QString text = text_of(model_.report(), player, column);
    const bool left = column == player_column::team;
    if (left) text = option.fontMetrics.elidedText(text, Qt::ElideRight, area.width());
    painter.drawText(area, left ? left_text : centred_text, text);
    if (player_column::is_skill(column)) {
        paint_bar(painter, option.rect,
                  player.skills.at(static_cast<std::size_t>(column - player_column::first_skill)));
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.state |= QStyle::State_KeyboardFocusChange;
        focus.backgroundColor = option.palette.color(selected ? QPalette::Highlight : QPalette::Base);
        option.widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, option.widget);
    }
}

}  // namespace kalco::app
