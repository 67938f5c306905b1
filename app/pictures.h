#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>
#include <functional>

class QPainter;

namespace kalco::app {

/// The drawing :/pictures/NAME.svg as a square of `side` device-independent pixels, null when there is none. Kept after
/// its first drawing.
QPixmap picture(const QString& name, int side, qreal ratio);

/// The same for a drawing that `svg` gives, known by a name of its own; an empty one gives a null picture.
QPixmap drawn_once(const QString& name, int side, qreal ratio, const std::function<QByteArray()>& svg);

/// What `paint` draws in an area of that size, known by a name of its own and kept with the size and the ratio.
QPixmap painted_once(const QString& name, QSize size, qreal ratio, const std::function<void(QPainter&)>& paint);

}  // namespace kalco::app
