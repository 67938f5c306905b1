#include "app/widgets/role_rows.h"

#include <QLineEdit>
#include <QPainter>

namespace kalco::app {

void RoleRows::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor stripe = palette().color(QPalette::WindowText);
    stripe.setAlphaF(0.06F);
    painter.setBrush(stripe);
    const auto names = findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly);
    if (names.size() < 2) return;
    const int height = names[1]->geometry().center().y() - names[0]->geometry().center().y();
    for (qsizetype row = 0; row < names.size(); row += 2) {
        const int middle = names[row]->geometry().center().y();
        painter.drawRoundedRect(QRect(0, middle - height / 2, width(), height), 4, 4);
    }
}

}  // namespace kalco::app
