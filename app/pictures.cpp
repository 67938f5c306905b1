#include "app/pictures.h"

#include <QFile>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace kalco::app {
namespace {

QByteArray resource(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// `paint` tells whether there is anything to draw.
QPixmap kept(const QString& name, QSize size, qreal ratio, const std::function<bool(QPainter&)>& paint) {
    const QSize pixels(qRound(size.width() * ratio), qRound(size.height() * ratio));
    if (pixels.isEmpty()) return {};
    const QString key = QStringLiteral("%1@%2x%3").arg(name).arg(pixels.width()).arg(pixels.height());
    QPixmap drawn;
    if (!QPixmapCache::find(key, &drawn)) {
        drawn = QPixmap(pixels);
        drawn.setDevicePixelRatio(ratio);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!paint(painter)) return {};
        painter.end();
        QPixmapCache::insert(key, drawn);
    }
    drawn.setDevicePixelRatio(ratio);
    return drawn;
}

}  // namespace

QPixmap picture(const QString& name, int side, qreal ratio) {
    if (name.isEmpty()) return {};
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(name);
    return drawn_once(file, side, ratio, [&file] { return resource(file); });
}

QPixmap drawn_once(const QString& name, int side, qreal ratio, const std::function<QByteArray()>& svg) {
    return kept(name, QSize(side, side), ratio, [&svg, side](QPainter& painter) {
        const QByteArray drawing = svg();
        if (drawing.isEmpty()) return false;
        QSvgRenderer(drawing).render(&painter, QRectF(0, 0, side, side));
        return true;
    });
}

QPixmap painted_once(const QString& name, QSize size, qreal ratio, const std::function<void(QPainter&)>& paint) {
    return kept(name, size, ratio, [&paint](QPainter& painter) {
        paint(painter);
        return true;
    });
}

}  // namespace kalco::app
