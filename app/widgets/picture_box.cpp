#include "app/widgets/picture_box.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace kalco::app {

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

PictureBox::~PictureBox() = default;

void PictureBox::show_picture(const QString& name) {
    if (name == name_) return;
    name_ = name;
    drawing_.reset();
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(name);
    if (!name.isEmpty() && QFile::exists(file)) drawing_ = std::make_unique<QSvgRenderer>(file);
    update();
}

void PictureBox::paintEvent(QPaintEvent*) {
    if (drawing_ == nullptr) return;
    QPainter painter(this);
    if (!isEnabled()) painter.setOpacity(0.5);
    const double side = std::min(width(), height());
    drawing_->render(&painter, QRectF((width() - side) / 2, (height() - side) / 2, side, side));
}

}  // namespace kalco::app
