#pragma once

#include <QLabel>

namespace kalco::app {

/// One line of plain text that gives way: what has no room is left out, and told in the hint.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void show_text(const QString& text);
    /// Where the text is cut.
    void set_elide_mode(Qt::TextElideMode mode) { mode_ = mode; }

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void update_hint();

    Qt::TextElideMode mode_ = Qt::ElideRight;
};

}  // namespace kalco::app
