#pragma once

#include <QWidget>

namespace kalco::app {

/// Shows the drawing of a name, nothing for an empty name or one that has no drawing.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    void show_picture(const QString& name);
    const QString& picture() const { return name_; }

    QSize sizeHint() const override { return {32, 32}; }
    QSize minimumSizeHint() const override { return {26, 26}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString name_;
};

}  // namespace kalco::app
