#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>
#include <functional>

namespace kalco::app {

/// The drawing :/pictures/NAME.svg as a square of `side` device-independent pixels, null when there is none. Kept after
/// its first drawing.
QPixmap picture(const QString& name, int side, qreal ratio);

/// The same for a drawing that `svg` gives, known by a name of its own; an empty one gives a null picture.
QPixmap drawn_once(const QString& name, int side, qreal ratio, const std::function<QByteArray()>& svg);

}  // namespace kalco::app
