#include "app/widgets/number_board.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "app/text.h"

namespace kalco::app {

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
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(2, 2, -2, -2);
    if (!possible_ && !in_use_) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignCenter, QString::number(number_));
        return;
    }
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlphaF(0.2F);
    painter.setPen(in_use_ ? QPen(Qt::NoPen) : QPen(edge, 1));
    painter.setBrush(palette().color(in_use_ ? QPalette::Highlight : QPalette::Base));
    painter.drawRoundedRect(area, 4, 4);
    if (marked_) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::WindowText), 2.5));
        painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
    QFont text_font = font();
    text_font.setBold(in_use_);
    painter.setFont(text_font);
    painter.setPen(palette().color(in_use_ ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(rect(), Qt::AlignCenter, QString::number(number_));
}

void NumberCellView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT pressed(number_);
}

}  // namespace kalco::app
