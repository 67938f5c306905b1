#include "app/quick_text.h"

#include <QCache>
#include <QCoreApplication>
#include <QStaticText>
#include <algorithm>
#include <cmath>

namespace kalco::app {
namespace {

/// What a window shows at once, and a few rosters.
constexpr int kept_lines = 1000;
constexpr int longest_line = 80;

struct Key {
    QString text;
    QFont font;

    bool operator==(const Key&) const = default;
};

std::size_t qHash(const Key& key, std::size_t seed = 0) {
    return qHashMulti(seed, key.text, key.font.weight(), key.font.pointSizeF());
}

bool is_plain_line(const QString& text, int flags) {
    constexpr int others = Qt::TextWordWrap | Qt::TextWrapAnywhere | Qt::AlignJustify | Qt::TextExpandTabs;
    if ((flags & others) != 0 || text.isEmpty() || text.size() > longest_line) return false;
    return std::none_of(text.begin(), text.end(), [](QChar character) { return character.unicode() < u' '; });
}

/// A caption without the sign of its access key, whose place it tells; -1 for none.
struct Caption {
    QString text;
    qsizetype key = -1;
};

Caption bare_caption(const QString& text, int flags) {
    Caption caption{text};
    if ((flags & (Qt::TextShowMnemonic | Qt::TextHideMnemonic)) == 0) return caption;
    for (qsizetype at = 0; at < caption.text.size(); ++at) {
        if (caption.text[at] != u'&') continue;
        caption.text.remove(at, 1);
        // A double one stands for itself.
        const bool is_key = at < caption.text.size() && caption.text[at] != u'&';
        if (is_key && caption.key < 0) caption.key = at;
    }
    return caption;
}

using Lines = QCache<Key, QStaticText>;

Lines& kept() {
    static Lines lines(kept_lines);
    // Fonts must not outlive the application.
    static const bool ends_with_it = (qAddPostRoutine([] { kept().clear(); }), true);
    static_cast<void>(ends_with_it);
    return lines;
}

/// Copies share their shapes.
QStaticText kept_line(const QPainter& painter, const QString& text) {
    Lines& lines = kept();
    const Key key{text, painter.font()};
    if (const QStaticText* const line = lines.object(key)) return *line;
    QStaticText line(text);
    line.setTextFormat(Qt::PlainText);
    line.prepare(painter.transform(), painter.font());
    lines.insert(key, new QStaticText(line));
    return line;
}

/// To a whole pixel of the device.
double snapped(double offset, double scale) {
    return scale > 0 ? std::round(offset * scale) / scale : offset;
}

void underline_key(QPainter& painter, const QPointF& corner, const Caption& caption) {
    const QFontMetrics metrics = painter.fontMetrics();
    const int before = metrics.horizontalAdvance(caption.text.left(caption.key));
    const int width = metrics.horizontalAdvance(caption.text[caption.key]);
    const QPointF place = corner + QPointF(before, metrics.ascent() + metrics.underlinePos());
    painter.fillRect(QRectF(place, QSizeF(width, metrics.lineWidth())), painter.pen().color());
}

}  // namespace

void draw_text(QPainter& painter, const QRect& area, int flags, const QString& text) {
    const bool upright = painter.transform().type() <= QTransform::TxScale;
    if (!upright || !is_plain_line(text, flags)) return painter.drawText(area, flags, text);
    const Caption caption = bare_caption(text, flags);
    const QStaticText line = kept_line(painter, caption.text);
    const QSizeF size = line.size();
    // What has no room is cut at the area's edge.
    if (size.width() > area.width() || size.height() > area.height()) return painter.drawText(area, flags, text);
    double x = 0;
    if ((flags & Qt::AlignRight) != 0) x = area.width() - size.width();
    if ((flags & Qt::AlignHCenter) != 0) x = (area.width() - size.width()) / 2;
    double y = 0;
    if ((flags & Qt::AlignBottom) != 0) y = area.height() - size.height();
    if ((flags & Qt::AlignVCenter) != 0) y = snapped((area.height() - size.height()) / 2, painter.transform().m22());
    const QPointF corner = area.topLeft() + QPointF(x, y);
    painter.drawStaticText(corner, line);
    if (caption.key >= 0 && (flags & Qt::TextShowMnemonic) != 0) {
        underline_key(painter, corner, caption);
    }
}

void draw_elided(QPainter& painter, const QRect& area, int flags, const QString& text, Qt::TextElideMode mode) {
    if (is_plain_line(text, flags) && kept_line(painter, text).size().width() <= area.width()) {
        return draw_text(painter, area, flags, text);
    }
    draw_text(painter, area, flags, painter.fontMetrics().elidedText(text, mode, area.width()));
}

}  // namespace kalco::app
