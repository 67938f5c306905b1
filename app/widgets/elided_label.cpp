#include "app/widgets/elided_label.h"

#include <QStylePainter>

namespace kalco::app {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::show_text(const QString& text) {
    setText(text);
    setAccessibleName(text);
    update_hint();
}

QSize ElidedLabel::minimumSizeHint() const {
    return {0, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), mode_, width());
    painter.drawItemText(rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown, foregroundRole());
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    update_hint();
}

void ElidedLabel::update_hint() {
    setToolTip(fontMetrics().horizontalAdvance(text()) > width() ? text() : QString());
}

}  // namespace kalco::app
