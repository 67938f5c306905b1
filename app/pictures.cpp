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

}  // namespace

QPixmap picture(const QString& name, int side, qreal ratio) {
    if (name.isEmpty()) return {};
    const QString file = QStringLiteral(":/pictures/%1.svg").arg(name);
    return drawn_once(file, side, ratio, [&file] { return resource(file); });
}

QPixmap drawn_once(const QString& name, int side, qreal ratio, const std::function<QByteArray()>& svg) {
    const int pixels = qRound(side * ratio);
    if (pixels <= 0) return {};
    const QString key = name + u'@' + QString::number(pixels);
    QPixmap drawn;
    if (!QPixmapCache::find(key, &drawn)) {
        const QByteArray drawing = svg();
        if (drawing.isEmpty()) return {};
        drawn = QPixmap(pixels, pixels);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        painter.setRenderHint(QPainter::Antialiasing);
        QSvgRenderer(drawing).render(&painter, QRectF(0, 0, pixels, pixels));
        painter.end();
        QPixmapCache::insert(key, drawn);
    }
    drawn.setDevicePixelRatio(ratio);
    return drawn;
}

}  // namespace kalco::app
