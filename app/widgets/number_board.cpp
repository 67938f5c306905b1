#include "app/widgets/number_board.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "app/pictures.h"
#include "app/quick_text.h"
#include "app/text.h"

namespace kalco::app {
namespace {

/// What a number stands on.
struct Ground {
    QColor fill;
    QColor ink;
    bool edged = false;
    bool marked = false;
};

QString name_of(const Ground& ground) {
    return QStringLiteral("cell %1 %2 %3 %4")
        .arg(ground.fill.rgb())
        .arg(ground.ink.rgb())
        .arg(ground.edged)
        .arg(ground.marked);
}

void draw_ground(QPainter& painter, const QRectF& area, const Ground& ground) {
    QColor edge = ground.ink;
    edge.setAlphaF(0.2F);
    painter.setPen(ground.edged ? QPen(edge, 1) : QPen(Qt::NoPen));
    painter.setBrush(ground.fill);
    painter.drawRoundedRect(area, 4, 4);
    if (!ground.marked) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ground.ink, 2.5));
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

}  // namespace

NumberCellView::NumberCellView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
}

void NumberCellView::set_number(int number) {
    number_ = number;
    update();
}

void NumberCellView::show_in_use(bool in_use) {
    in_use_ = in_use;
    tell();
    update();
}

void NumberCellView::show_marked(bool marked) {
    if (std::exchange(marked_, marked) != marked) update();
}

void NumberCellView::show_possible(bool possible) {
    if (std::exchange(possible_, possible) == possible) return;
    tell();
    update();
}

void NumberCellView::show_wearer(const QString& wearer) {
    if (std::exchange(wearer_, wearer) != wearer) tell();
}

void NumberCellView::tell() {
    const QString number = QString::number(number_);
    if (!possible_) {
        setAccessibleName(number + QStringLiteral(" non possibile"));
        setToolTip(QStringLiteral("Le nazionali hanno numeri da 1 a 32"));
    } else if (!wearer_.isEmpty()) {
        setAccessibleName(QStringLiteral("%1 in uso, %2").arg(number, wearer_));
        setToolTip(QStringLiteral("%1: %2").arg(number, visible_text(wearer_)));
    } else {
        setAccessibleName(number + (in_use_ ? QStringLiteral(" in uso") : QStringLiteral(" libero")));
        setToolTip(in_use_ ? QString() : QStringLiteral("Clicca per scriverlo nel campo del numero"));
    }
}

QSize NumberCellView::sizeHint() const {
    return {fontMetrics().horizontalAdvance(QStringLiteral("000")) + 12, fontMetrics().height() + 12};
}

void NumberCellView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!possible_ && !in_use_) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        draw_text(painter, rect(), Qt::AlignCenter, QString::number(number_));
        return;
    }
    const Ground ground{palette().color(in_use_ ? QPalette::Highlight : QPalette::Base),
                        palette().color(QPalette::WindowText), !in_use_, marked_};
    painter.drawPixmap(0, 0, painted_once(name_of(ground), size(), devicePixelRatioF(), [&](QPainter& cell) {
                           draw_ground(cell, QRectF(rect()).adjusted(2, 2, -2, -2), ground);
                       }));
    QFont text_font = font();
    text_font.setBold(in_use_);
    painter.setFont(text_font);
    painter.setPen(palette().color(in_use_ ? QPalette::HighlightedText : QPalette::Text));
    draw_text(painter, rect(), Qt::AlignCenter, QString::number(number_));
}

void NumberCellView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT pressed(number_);
}

}  // namespace kalco::app
