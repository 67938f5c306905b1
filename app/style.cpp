#include "app/style.h"

#include <QGroupBox>
#include <QPainter>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>
#include <algorithm>

#include "app/pictures.h"
#include "app/quick_text.h"
#include "app/readable.h"

namespace kalco::app {
namespace {

constexpr auto unsaved_property = "unsaved";

/// Within the frame: the text begins beside it.
void draw_unsaved_edge(QPainter& painter, const QStyleOption& option) {
    constexpr int width = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(warning_ink(option.palette.color(QPalette::Base)), width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 2, 2);
    painter.restore();
}

void draw_edge(QPainter& painter, const QRect& frame, const QColor& colour) {
    // The corners are left out, and look round.
    painter.fillRect(frame.left() + 1, frame.top(), frame.width() - 2, 1, colour);
    painter.fillRect(frame.left() + 1, frame.bottom(), frame.width() - 2, 1, colour);
    painter.fillRect(frame.left(), frame.top() + 1, 1, frame.height() - 2, colour);
    painter.fillRect(frame.right(), frame.top() + 1, 1, frame.height() - 2, colour);
}

bool is_dark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

/// Fusion's own edge is darker than the window, which is not seen on a dark one.
void draw_ring(QPainter& painter, const QStyleOption& option) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(mix(option.palette.color(QPalette::WindowText), option.palette.color(QPalette::Window), 0.45));
    painter.drawEllipse(QRectF(option.rect).adjusted(1, 1, -1, -1));
}

/// Fusion stretches a picture over the frame, which takes longer than all that stands in it.
void draw_group_frame(QPainter& painter, const QRect& frame, const QPalette& palette) {
    const double share = is_dark(palette) ? 0.14 : 0.06;
    draw_edge(painter, frame, mix(palette.color(QPalette::WindowText), palette.color(QPalette::Window), share));
}

/// A large frame with the colours of a small one that Fusion drew. On a dark window Fusion's ground is lighter than the
/// window's, which all inks are chosen for; then the page keeps the window's.
void draw_pane(QPainter& painter, const QRect& frame, const QImage& sample, const QPalette& palette) {
    constexpr int edges = 3;
    const int middle = sample.width() / 2;
    const QColor ink = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const QColor own = sample.pixelColor(middle, middle);
    const QColor ground = contrast(ink, own) < contrast(ink, window) ? window : own;
    const auto colour = [&](int x, int y) {
        const QColor there = sample.pixelColor(x, y);
        return there == own ? ground : there;
    };
    painter.fillRect(frame.adjusted(edges, edges, -edges, -edges), ground);
    for (int ring = edges - 1; ring >= 0; --ring) {
        const QRect area = frame.adjusted(ring, ring, -ring, -ring);
        const int far = sample.width() - 1 - ring;
        painter.fillRect(area.left(), area.top(), 1, area.height(), colour(ring, middle));
        painter.fillRect(area.right(), area.top(), 1, area.height(), colour(far, middle));
        painter.fillRect(area.left(), area.top(), area.width(), 1, colour(middle, ring));
        painter.fillRect(area.left(), area.bottom(), area.width(), 1, colour(middle, far));
    }
}

/// A piece that Fusion draws anew each time, and that looks alike in many places.
bool is_kept(QStyle::PrimitiveElement element, const QStyleOption* option, const QWidget* widget) {
    if (element == QStyle::PE_IndicatorRadioButton) return option != nullptr;
    if (element != QStyle::PE_PanelLineEdit || widget == nullptr) return false;
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    // Within a combo or a spin box a text field has no frame of its own.
    const QWidget* const around = widget->parentWidget();
    const bool alone = around == nullptr || !(around->inherits("QComboBox") || around->inherits("QAbstractSpinBox"));
    return frame != nullptr && frame->lineWidth > 0 && alone;
}

QString key_of(QStyle::PrimitiveElement element, const QStyleOption& option) {
    return QStringLiteral("piece %1 %2 %3").arg(element).arg(option.state.toInt()).arg(option.palette.cacheKey());
}

/// On a dark list nothing else tells an empty box from its ground.
void draw_edge_of_box(QPainter& painter, const QStyleOption& option) {
    painter.save();
    painter.setPen(faint(option.palette.color(QPalette::Text), option.palette.color(QPalette::Base)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

}  // namespace

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

void Style::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    palette = readable_palette(palette);
}

int Style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                     QStyleHintReturn* answer) const {
    // A list below the field, with a scroll bar: the other kind fills the screen.
    if (hint == SH_ComboBox_Popup) return 0;
    // What is chosen is shown at once.
    if (hint == SH_Widget_Animation_Duration) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

/// Below the caption, as Fusion has it.
QRect Style::group_frame(const QStyleOption& option, const QWidget* widget) const {
    constexpr int gap = 3;
    const auto* const box = qobject_cast<const QGroupBox*>(widget);
    if (box != nullptr && box->title().isEmpty()) return option.rect.adjusted(0, gap, 0, 0);
    const int caption = std::max(pixelMetric(PM_IndicatorHeight, &option, widget), option.fontMetrics.height());
    return option.rect.adjusted(0, caption + gap, 0, 0);
}

QPixmap Style::kept_piece(PrimitiveElement element, const QStyleOption& option, qreal ratio,
                          const QWidget* widget) const {
    return painted_once(key_of(element, option), option.rect.size(), ratio, [&](QPainter& piece) {
        piece.setRenderHint(QPainter::Antialiasing, false);
        piece.translate(-option.rect.topLeft());
        QProxyStyle::drawPrimitive(element, &option, &piece, widget);
        if (element == PE_IndicatorRadioButton && is_dark(option.palette)) draw_ring(piece, option);
    });
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    if (element == PE_FrameGroupBox && option != nullptr) {
        draw_group_frame(*painter, group_frame(*option, widget), option->palette);
    } else if (const auto* pane = qstyleoption_cast<const QStyleOptionTabWidgetFrame*>(option);
               element == PE_FrameTabWidget && pane != nullptr) {
        constexpr int side = 16;
        QStyleOptionTabWidgetFrame small = *pane;
        small.rect = QRect(0, 0, side, side);
        draw_pane(*painter, pane->rect, kept_piece(element, small, 1, widget).toImage(), pane->palette);
    } else if (is_kept(element, option, widget)) {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(option->rect.topLeft(), kept_piece(element, *option, ratio, widget));
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    if (element == PE_Frame && option != nullptr && option->state.testFlag(State_HasFocus)) {
        draw_edge(*painter, option->rect, option->palette.color(QPalette::Highlight));
    }
    if (element == PE_PanelLineEdit && widget != nullptr && is_marked_unsaved(*widget)) {
        draw_unsaved_edge(*painter, *option);
    }
    if (element == PE_IndicatorItemViewItemCheck) draw_edge_of_box(*painter, *option);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && widget != nullptr && is_marked_unsaved(*widget)) {
        draw_unsaved_edge(*painter, *option);
    }
}

void Style::drawItemText(QPainter* painter, const QRect& area, int flags, const QPalette& palette, bool,
                         const QString& text, QPalette::ColorRole ink) const {
    if (text.isEmpty()) return;
    const QPen before = painter->pen();
    if (ink != QPalette::NoRole) painter->setPen(palette.color(ink));
    draw_text(*painter, area, flags, text);
    painter->setPen(before);
}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton) result += QSize(18, 4);
    return result;
}

void mark_unsaved(QWidget& field, bool unsaved) {
    field.setProperty(unsaved_property, unsaved);
    field.update();
}

bool is_marked_unsaved(const QWidget& field) {
    return field.property(unsaved_property).toBool();
}

}  // namespace kalco::app
