#include "app/widgets/number_board.h"

#include <QMouseEvent>
#include <QPainter>

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
    setAccessibleName(QString::number(number_) + (in_use ? tr(" in uso") : tr(" libero")));
    update();
}

void NumberCellView::show_marked(bool marked) {
    if (std::exchange(marked_, marked) != marked) update();
}

QSize NumberCellView::sizeHint() const {
    return {fontMetrics().horizontalAdvance(QStringLiteral("000")) + 12, fontMetrics().height() + 12};
}

void NumberCellView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(2, 2, -2, -2);
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
