#include "app/widgets/picture_box.h"

#include <QPainter>

#include "app/pictures.h"

namespace kalco::app {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureBox::show_picture(const QString& name) {
    if (name == name_) return;
    name_ = name;
    update();
}

void PictureBox::paintEvent(QPaintEvent*) {
    const int side = std::min(width(), height());
    const QPixmap drawing = app::picture(name_, side, devicePixelRatioF());
    if (drawing.isNull()) return;
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(0.5);
    painter.drawPixmap((width() - side) / 2, (height() - side) / 2, drawing);
}

}  // namespace kalco::app
