#include "app/style.h"

namespace kalco::app {

Style::Style() : QProxyStyle(QStringLiteral("Fusion")) {}

QSize Style::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                              const QWidget* widget) const {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_PushButton) result += QSize(18, 4);
    return result;
}

}  // namespace kalco::app
