#include "app/widgets/portrait_view.h"

#include <QPainter>

#include "app/pictures.h"

namespace kalco::app {

PortraitView::PortraitView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PortraitView::show_looks(const Looks& looks) {
    if (shown_ && looks == looks_) return;
    shown_ = true;
    looks_ = looks;
    update();
}

void PortraitView::paintEvent(QPaintEvent*) {
    if (!shown_) return;
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(0.5);
    const int side = std::min(width(), height());
    painter.drawPixmap((width() - side) / 2, (height() - side) / 2,
                       portrait_picture(looks_, side, devicePixelRatioF()));
}

QPixmap portrait_picture(const Looks& looks, int side, qreal ratio) {
    const QString key = QStringLiteral("portrait %1 %2 %3 %4 %5")
                            .arg(looks.skin)
                            .arg(QString::fromStdString(looks.hair_style))
                            .arg(looks.hair_colour)
                            .arg(QString::fromStdString(looks.beard_style))
                            .arg(looks.beard_colour);
    return drawn_once(key, side, ratio, [&] { return QByteArray::fromStdString(portrait_svg(looks)); });
}

}  // namespace kalco::app
