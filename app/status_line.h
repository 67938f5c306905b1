#pragma once

#include <QStatusBar>
#include <functional>

class QPushButton;

namespace kalco::app {

class ElidedLabel;

/// The line at the foot of the window: what went where, and what was dropped, which it can bring back.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void tell(const QString& text);
    /// With a button that runs the step, once.
    void tell(const QString& text, std::function<void()> resume);
    QString text() const;

private:
    void press();

    ElidedLabel* text_;
    QPushButton* resume_button_;
    std::function<void()> resume_;
};

}  // namespace kalco::app
