#include "app/widgets/rows_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "app/quick_text.h"
#include "app/readable.h"
#include "app/text.h"

namespace kalco::app {
namespace {

/// A row: its number, its text, its note.
class RowDelegate : public QStyledItemDelegate {
public:
    explicit RowDelegate(RowsView& view) : QStyledItemDelegate(&view), view_(view) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const QSize hint = QStyledItemDelegate::sizeHint(option, index);
        return {hint.width() + number_width(option), option.fontMetrics.height() + 5};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& given, const QModelIndex& index) const override {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        const RowNote note = view_.note ? view_.note(index.row()) : RowNote();
        const QString text = visible_text(option.text);
        option.text.clear();
        if (note.marked) option.font.setBold(true);
        const QWidget* const widget = option.widget;
        const bool outlined = view_.only_list() && option.state.testFlag(QStyle::State_Selected);
        if (outlined) option.state.setFlag(QStyle::State_Selected, false);
        QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, widget);

        painter->save();
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        const QColor ink = option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
        const QColor ground = option.palette.color(selected ? QPalette::Highlight : QPalette::Base);
        const QColor faint = app::faint(ink, ground, selected ? 0.8 : 0.55);
        if (outlined) {
            painter->setPen(faint);
            painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
        }
        QRect area = option.rect.adjusted(6, 0, -6, 0);
        painter->setFont(option.font);
        if (const int width = number_width(option); width > 0) {
            painter->setPen(faint);
            const QRect column(area.left(), area.top(), width - 10, area.height());
            draw_text(*painter, column, Qt::AlignRight | Qt::AlignVCenter, QString::number(index.row() + 1));
            area.setLeft(area.left() + width);
        }
        if (!note.note.isEmpty()) {
            painter->setPen(faint);
            draw_text(*painter, area, Qt::AlignRight | Qt::AlignVCenter, note.note);
            area.setRight(area.right() - painter->fontMetrics().horizontalAdvance(note.note) - 8);
        }
        painter->setPen(note.muted ? faint : ink);
        draw_elided(*painter, area, Qt::AlignLeft | Qt::AlignVCenter, text);
        painter->restore();
    }

private:
    int number_width(const QStyleOptionViewItem& option) const {
        if (!view_.numbered()) return 0;
        const auto digits = QString::number(std::max(qsizetype{10}, view_.rows().size())).size();
        return option.fontMetrics.horizontalAdvance(QString(digits, u'0')) + 10;
    }

    RowsView& view_;
};

}  // namespace

void RowsModel::set_rows(QStringList rows) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
}

int RowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rows_.size()) return {};
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole) return rows_[index.row()];
    return {};
}

RowsView::RowsView(QWidget* parent) : QListView(parent) {
    setModel(&rows_);
    setItemDelegate(new RowDelegate(*this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::TabFocus);
}

void RowsView::set_rows(const QStringList& rows) {
    // A list that is read back after a save stays where the user had scrolled it.
    const int scrolled = rows.size() == rows_.rows().size() ? verticalScrollBar()->value() : 0;
    rows_.set_rows(rows);
    shown_row_ = -1;
    doItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

void RowsView::set_row(int row) {
    const bool moved = row != shown_row_;
    shown_row_ = row;
    setCurrentIndex(rows_.index(row));
    if (row < 0) {
        clearSelection();
    } else if (moved) {
        scrollTo(rows_.index(row));
    }
    viewport()->update();
}

QSize RowsView::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 22, fontMetrics().height() * 12};
}

QSize RowsView::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 14, fontMetrics().height() * 5};
}

void RowsView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid()) Q_EMIT picked(index.row());
}

void RowsView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex index = indexAt(event->position().toPoint());
    if (!index.isValid()) return;
    // The first press may have changed the list; then this is a press of its own.
    if (index.row() == row()) {
        Q_EMIT pressed_again(index.row());
    } else {
        Q_EMIT picked(index.row());
    }
}

void RowsView::mouseMoveEvent(QMouseEvent*) {}

void RowsView::mouseReleaseEvent(QMouseEvent*) {}

void RowsView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool chord = event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
    // An access key that nothing has must not search the rows.
    if (chord && !event->matches(QKeySequence::Copy)) {
        event->ignore();
        return;
    }
    const bool erases = property("deleteErases").toBool();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (erases ? key == Qt::Key_Delete : enter) {
        if (row() >= 0) Q_EMIT confirmed(row());
        return;
    }
    if (enter) return;
    QListView::keyPressEvent(event);
    const int chosen = row();
    if (chosen != shown_row_ && chosen >= 0) Q_EMIT picked(chosen);
}

void RowsView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    // The base class would begin at the first row.
    if (row() != shown_row_) setCurrentIndex(rows_.index(shown_row_));
    update();  // The frame, which tells where the keyboard is.
}

void RowsView::focusOutEvent(QFocusEvent* event) {
    QListView::focusOutEvent(event);
    update();
}

}  // namespace kalco::app
