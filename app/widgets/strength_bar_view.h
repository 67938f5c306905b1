#pragma once

#include <QWidget>

namespace kalco::app {

/// A strength from 0 to 10 with its caption.
class StrengthBarView : public QWidget {
    Q_OBJECT

public:
    explicit StrengthBarView(QWidget* parent = nullptr);

    void show_value(int value);
    void show_caption(const QString& caption);
    int value() const { return value_; }
    const QString& caption() const { return caption_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int value_ = 0;
    QString caption_;
};

}  // namespace kalco::app
