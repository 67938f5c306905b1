#pragma once

#include <QWidget>
#include <memory>
#include <vector>

class QSvgRenderer;

namespace kalco::app {

/// A player's looks, as texts of the fields; an unknown or empty one leaves its part out.
struct Looks {
    int skin = -1;
    QString hair_style;
    int hair_colour = -1;
    QString beard_style;
    int beard_colour = -1;

    bool operator==(const Looks&) const = default;
};

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
    void add_layer(const QString& name);

    Looks looks_;
    std::vector<std::unique_ptr<QSvgRenderer>> layers_;
};

}  // namespace kalco::app
