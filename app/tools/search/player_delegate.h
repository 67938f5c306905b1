#pragma once

#include <QSet>
#include <QStyledItemDelegate>
#include <QTimer>

#include "app/tools/search/players_model.h"

namespace kalco::app {

/// Paints the table of the search: the name with its tick and portrait, all else as plain text, which takes far less
/// time than the style does, and a bar below each skill. Of portraits that were never drawn a frame gets some, and the
/// next frames the others.
class PlayerDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int portrait_side = 28;

    PlayerDelegate(const PlayersModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

Q_SIGNALS:
    /// There are portraits to paint in another frame.
    void frame_wanted() const;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    void paint_name(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
    void paint_cell(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    void paint_portrait(QPainter& painter, QPoint place, int player) const;

    const PlayersModel& model_;
    QTimer* next_frame_;
    mutable QSet<int> drawn_;      ///< Players whose portrait has been drawn.
    mutable qint64 spent_ns_ = 0;  ///< On new portraits in this frame.
};

}  // namespace kalco::app
