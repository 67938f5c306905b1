#include "app/widgets/portrait_view.h"

#include <QPainter>
#include <QSvgRenderer>

namespace kalco::app {

PortraitView::PortraitView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

PortraitView::~PortraitView() = default;

void PortraitView::show_looks(const Looks& looks) {
    if (portrait_ && looks == looks_) return;
    looks_ = looks;
    portrait_ = std::make_unique<QSvgRenderer>(QByteArray::fromStdString(portrait_svg(looks)));
    update();
}

void PortraitView::paintEvent(QPaintEvent*) {
    if (!portrait_) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(0.5);
    const double side = std::min(width(), height());
    portrait_->render(&painter, QRectF((width() - side) / 2, (height() - side) / 2, side, side));
}

}  // namespace kalco::app
