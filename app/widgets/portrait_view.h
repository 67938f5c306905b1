#pragma once

#include <QPixmap>
#include <QWidget>

#include "work/portrait.h"

namespace kalco::app {

/// One face out of skin, hair and beard.
class PortraitView : public QWidget {
    Q_OBJECT

public:
    explicit PortraitView(QWidget* parent = nullptr);

    void show_looks(const Looks& looks);

    QSize sizeHint() const override { return {168, 168}; }
    QSize minimumSizeHint() const override { return {110, 110}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool shown_ = false;
    Looks looks_;
};

/// The portrait as a square of `side` device-independent pixels. Kept after its first drawing.
QPixmap portrait_picture(const Looks& looks, int side, qreal ratio);

}  // namespace kalco::app
