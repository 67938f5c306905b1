#include "app/style.h"

#include <QPainter>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

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
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_PanelLineEdit && widget != nullptr && is_marked_unsaved(*widget)) {
        draw_unsaved_edge(*painter, *option);
    }
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && widget != nullptr && is_marked_unsaved(*widget)) {
        draw_unsaved_edge(*painter, *option);
    }
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
