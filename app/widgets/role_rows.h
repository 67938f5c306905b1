#pragma once

#include <QWidget>

namespace kalco::app {

/// Draws a stripe behind every second row of the players and the option buttons beside them.
class RoleRows : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace kalco::app
