#include "app/widgets/strength_bar_view.h"

#include <QPainter>
#include <QPainterPath>

#include "app/widgets/pick_combo.h"

namespace kalco::app {

StrengthBarView::StrengthBarView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void StrengthBarView::show_value(int value) {
    value_ = value;
    update();
}

void StrengthBarView::show_caption(const QString& caption) {
    caption_ = caption;
    update();
}

QSize StrengthBarView::sizeHint() const {
    return {140, fontMetrics().height() + 8};
}

QSize StrengthBarView::minimumSizeHint() const {
    return {90, fontMetrics().height() + 6};
}

void StrengthBarView::paintEvent(QPaintEvent*) {
    constexpr double most = 10;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int number_width = fontMetrics().horizontalAdvance(QStringLiteral("000")) + 4;
    const QRectF number(0, 0, number_width, height());
    painter.setPen(palette().color(QPalette::WindowText));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.drawText(number, Qt::AlignRight | Qt::AlignVCenter, caption_);

    const QRectF track(number_width + 8, height() / 2.0 - 6, width() - number_width - 10, 12);
    QColor groove = palette().color(QPalette::WindowText);
    groove.setAlphaF(0.12F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groove);
    painter.drawRoundedRect(track, 6, 6);
    if (value_ <= 0) return;
    QLinearGradient gradient(track.topLeft(), track.topRight());
    gradient.setColorAt(0, skill_colour(0));
    gradient.setColorAt(1, skill_colour(1));
    QPainterPath outline;
    outline.addRoundedRect(track, 6, 6);
    painter.setClipPath(outline);
    painter.fillRect(QRectF(track.topLeft(), QSizeF(track.width() * value_ / most, track.height())), gradient);
}

}  // namespace kalco::app
