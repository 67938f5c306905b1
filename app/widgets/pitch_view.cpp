#include "app/widgets/pitch_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include "app/text.h"
#include "app/widgets/pitch_names.h"

namespace kalco::app {
namespace {

constexpr double pitch_length = 105;  // metres, for the proportions of the lines

/// The colours of the lines of a team, told by the first word of a role's label.
QColor line_colour(const QString& caption) {
    const QString role = caption.section(u' ', 0, 0);
    if (role == u"DC" || role == u"SW" || role == u"LIB" || role == u"TER") return QColor(0x1f, 0x5f, 0xbf);
    if (role == u"CC" || role == u"CL" || role == u"CO") return QColor(0xb8, 0x7a, 0x00);
    if (role == u"CA" || role == u"AL") return QColor(0xb8, 0x2a, 0x2a);
    return QColor(0x55, 0x55, 0x5d);
}

QPainterPath shirt_outline(const QRectF& area) {
    const auto at = [&area](double x, double y) {
        return QPointF(area.left() + x * area.width(), area.top() + y * area.height());
    };
    QPainterPath path(at(0.36, 0.03));
    path.quadTo(at(0.5, 0.16), at(0.64, 0.03));
    path.lineTo(at(0.78, 0.08));
    path.lineTo(at(0.99, 0.34));
    path.lineTo(at(0.84, 0.48));
    path.lineTo(at(0.77, 0.41));
    path.lineTo(at(0.77, 0.97));
    path.lineTo(at(0.23, 0.97));
    path.lineTo(at(0.23, 0.41));
    path.lineTo(at(0.16, 0.48));
    path.lineTo(at(0.01, 0.34));
    path.lineTo(at(0.22, 0.08));
    path.closeSubpath();
    return path;
}

struct Shirt {
    QColor fill;
    QColor ink = Qt::white;
    QColor edge = Qt::white;
};

/// The label's words stand below each other.
void draw_shirt(QPainter& painter, const QRectF& area, const Shirt& shirt, const QString& label) {
    painter.setBrush(shirt.fill);
    painter.setPen(QPen(shirt.edge, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shirt_outline(area));
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(std::max(8, static_cast<int>(area.height() * 0.3)));
    painter.setFont(font);
    painter.setPen(shirt.ink);
    const QRectF chest(area.left(), area.top() + area.height() * 0.2, area.width(), area.height() * 0.74);
    painter.drawText(chest, Qt::AlignCenter, QString(label).replace(u' ', u'\n'));
}

void draw_lines(QPainter& painter, const QRectF& field) {
    const double unit = field.width() / pitch_length;
    const double middle = field.center().y();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 205), std::max(1.2, unit * 0.25)));
    painter.drawRect(field);
    painter.drawLine(QPointF(field.center().x(), field.top()), QPointF(field.center().x(), field.bottom()));
    painter.drawEllipse(field.center(), 9.15 * unit, 9.15 * unit);
    for (const bool left : {true, false}) {
        const double goal_line = left ? field.left() : field.right();
        const double inward = left ? unit : -unit;
        const auto box = [&](double depth, double width) {
            painter.drawRect(QRectF(goal_line, middle - width * unit / 2, inward * depth, width * unit).normalized());
        };
        box(16.5, 40.3);
        box(5.5, 18.3);
        const QPointF spot(goal_line + 11 * inward, middle);
        const QRectF circle(spot.x() - 9.15 * unit, spot.y() - 9.15 * unit, 18.3 * unit, 18.3 * unit);
        painter.drawArc(circle, (left ? -53 : 127) * 16, 106 * 16);
        painter.save();
        painter.setBrush(QColor(255, 255, 255, 205));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(spot, 0.5 * unit, 0.5 * unit);
        painter.restore();
        // The own goal is filled, the other one is a frame.
        const QRectF goal = QRectF(goal_line, middle - 4 * unit, -inward * 1.9, 8 * unit).normalized();
        painter.fillRect(goal, left ? QColor(255, 255, 255, 190) : QColor(255, 255, 255, 60));
        painter.drawRect(goal);
    }
}

/// The field's lines in the grass.
QRectF field_of(const QRectF& grass) {
    const double margin = grass.width() * 0.04;
    const double strip = std::max(22.0, grass.height() * 0.06);
    return grass.adjusted(margin, strip, -margin, -strip);
}

void draw_direction(QPainter& painter, const QRectF& field, double below, const QFont& font) {
    painter.setFont(font);
    painter.setPen(QColor(255, 255, 255, 225));
    const QString text = QStringLiteral("Direzione di gioco");
    const double width = painter.fontMetrics().horizontalAdvance(text);
    const double y = field.bottom() + below / 2;
    const double left = field.center().x() - (width + 50) / 2;
    painter.drawText(QRectF(left, y - 20, width + 8, 40), Qt::AlignLeft | Qt::AlignVCenter, text);
    const QPointF tip(left + width + 50, y);
    painter.setPen(QPen(QColor(255, 255, 255, 225), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawLine(QPointF(left + width + 12, y), tip);
    painter.drawPolyline(QPolygonF({tip + QPointF(-6, -5), tip, tip + QPointF(-6, 5)}));
}

}  // namespace

MarkerView::MarkerView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

void MarkerView::show_caption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    update();
}

void MarkerView::show_selected(bool selected) {
    selected_ = selected;
    if (selected) raise();
    update();
}

void MarkerView::show_place(int left, int top) {
    left_ = left;
    top_ = top;
    if (auto* pitch = qobject_cast<PitchView*>(parentWidget())) pitch->place(*this);
}

void MarkerView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) painter.setOpacity(0.45);
    Shirt shirt;
    shirt.fill = line_colour(caption_);
    shirt.edge = QColor(255, 255, 255, 230);
    if (selected_) {
        std::swap(shirt.ink, shirt.fill);
        shirt.edge = shirt.ink;
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 235, 80, 150));
        painter.drawEllipse(QRectF(rect()));
    }
    draw_shirt(painter, QRectF(rect()).adjusted(2, 2, -2, -2), shirt, visible_text(caption_));
}

void MarkerView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    grip_ = event->position().toPoint();
    Q_EMIT pressed();
}

void MarkerView::mouseMoveEvent(QMouseEvent* event) {
    if (!event->buttons().testFlag(Qt::LeftButton)) return;
    const auto* pitch = qobject_cast<PitchView*>(parentWidget());
    if (pitch == nullptr) return;
    const QPoint wished = pitch->units_at(mapToParent(event->position().toPoint() - grip_));
    Q_EMIT dragged(wished.x(), wished.y());
}

PitchView::PitchView(QWidget* parent) : QWidget(parent), names_(new PitchNames(this)) {
    setFocusPolicy(Qt::StrongFocus);
}

void PitchView::show_names(const QStringList& names) {
    names_->show_names(names);
    place_names();
}

void PitchView::place_names() {
    // The keeper's first, then the markers' in their order: the last part of a marker's name is its number.
    std::vector<QRect> shirts{keeper().toRect()};
    const int first = 2;
    const int last = 11;
    for (int place = first; place <= last; ++place) {
        const auto* const marker = findChild<MarkerView*>(QStringLiteral("lblGioc_%1").arg(place));
        shirts.push_back(marker == nullptr ? QRect() : marker->geometry());
    }
    names_->setGeometry(rect());
    names_->place(shirts, grass().toRect());
    names_->raise();
}

QRectF PitchView::keeper() const {
    const QRectF field = field_of(grass());
    const QSizeF size = marker_size();
    return {field.left() - size.width() * 0.3, field.center().y() - size.height() / 2, size.width(), size.height()};
}

QRectF PitchView::grass() const {
    constexpr double proportion = 1.34;
    double wide = width();
    double high = height();
    if (wide > high * proportion) {
        wide = high * proportion;
    } else {
        high = wide / proportion;
    }
    return {(width() - wide) / 2, (height() - high) / 2, wide, high};
}

QSizeF PitchView::marker_size() const {
    const double side = std::clamp(grass().width() * 0.084, 30.0, 84.0);
    return {side, side};
}

void PitchView::place(MarkerView& marker) const {
    const QRectF area = grass();
    const QSizeF size = marker_size();
    const double x = area.left() + marker.left_units() * (area.width() - size.width()) / units_wide;
    const double y = area.top() + marker.top_units() * (area.height() - size.height()) / units_high;
    marker.setGeometry(QRectF(QPointF(x, y), size).toRect());
}

QPoint PitchView::units_at(QPoint corner) const {
    const QRectF area = grass();
    const QSizeF size = marker_size();
    return {qRound((corner.x() - area.left()) * units_wide / (area.width() - size.width())),
            qRound((corner.y() - area.top()) * units_high / (area.height() - size.height()))};
}

void PitchView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = grass();
    QPainterPath outline;
    outline.addRoundedRect(area.adjusted(1, 1, -1, -1), 8, 8);
    painter.setClipPath(outline);
    constexpr int stripes = 12;
    const double stripe = area.width() / stripes;
    for (int i = 0; i < stripes; ++i) {
        painter.fillRect(QRectF(area.left() + i * stripe, area.top(), stripe + 1, area.height()),
                         i % 2 == 0 ? QColor(0x2f, 0x7d, 0x3c) : QColor(0x37, 0x89, 0x45));
    }
    const QRectF field = field_of(area);
    draw_lines(painter, field);
    QFont small_font = font();
    small_font.setPixelSize(std::max(10, static_cast<int>(area.height() * 0.026)));
    // The keeper is no marker; he tells the own goal.
    draw_shirt(painter, keeper().adjusted(2, 2, -2, -2),
               {QColor(0x4a, 0x4e, 0x57), QColor(255, 255, 255, 200), Qt::white}, QStringLiteral("P"));
    draw_direction(painter, field, area.bottom() - field.bottom(), small_font);
    painter.setClipping(false);
    if (!isEnabled()) {
        QColor veil = palette().color(QPalette::Window);
        veil.setAlphaF(0.45F);
        painter.fillPath(outline, veil);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
        painter.drawPath(outline);
    }
}

void PitchView::resizeEvent(QResizeEvent*) {
    for (MarkerView* marker : findChildren<MarkerView*>(Qt::FindDirectChildrenOnly)) place(*marker);
    place_names();
}

void PitchView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left: Q_EMIT stepped(-1, 0); break;
        case Qt::Key_Right: Q_EMIT stepped(1, 0); break;
        case Qt::Key_Up: Q_EMIT stepped(0, -1); break;
        case Qt::Key_Down: Q_EMIT stepped(0, 1); break;
        case Qt::Key_PageDown: Q_EMIT turned(1); break;
        case Qt::Key_PageUp: Q_EMIT turned(-1); break;
        default: QWidget::keyPressEvent(event);
    }
}

void PitchView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void PitchView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

}  // namespace kalco::app
