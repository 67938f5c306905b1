#pragma once

#include <QProxyStyle>

namespace kalco::app {

/// Fusion on the system's palette, with room around the captions of buttons.
class Style : public QProxyStyle {
    Q_OBJECT

public:
    Style();

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
};

}  // namespace kalco::app
