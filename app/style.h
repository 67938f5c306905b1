#pragma once

#include <QProxyStyle>

namespace kalco::app {

/// Fusion on the system's palette, with room around the captions of buttons, popups of a list's height, a strong
/// edge around unsaved fields, and inks that can be read.
class Style : public QProxyStyle {
    Q_OBJECT

public:
    Style();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

    void drawItemText(QPainter* painter, const QRect& area, int flags, const QPalette& palette, bool enabled,
                      const QString& text, QPalette::ColorRole ink = QPalette::NoRole) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;

private:
    QRect group_frame(const QStyleOption& option, const QWidget* widget) const;
    QPixmap kept_piece(PrimitiveElement element, const QStyleOption& option, qreal ratio, const QWidget* widget) const;
};

/// Whether a text field or pick list shows the edge.
void mark_unsaved(QWidget& field, bool unsaved);
bool is_marked_unsaved(const QWidget& field);

}  // namespace kalco::app
