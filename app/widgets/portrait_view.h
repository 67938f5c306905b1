#pragma once

#include <QWidget>
#include <memory>

#include "work/portrait.h"

class QSvgRenderer;

namespace kalco::app {

/// One face out of skin, hair and beard.
class PortraitView : public QWidget {
    Q_OBJECT

public:
    explicit PortraitView(QWidget* parent = nullptr);
    ~PortraitView() override;

    void show_looks(const Looks& looks);

    QSize sizeHint() const override { return {168, 168}; }
    QSize minimumSizeHint() const override { return {110, 110}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Looks looks_;
    std::unique_ptr<QSvgRenderer> portrait_;
};

}  // namespace kalco::app
