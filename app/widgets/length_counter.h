#pragma once

#include <QObject>

class QLabel;
class QLineEdit;

namespace kalco::app {

/// Counts the characters of a field at its right end: "5/5".
class LengthCounter : public QObject {
    Q_OBJECT

public:
    explicit LengthCounter(QLineEdit& field);

    /// 0 for none: nothing is counted then.
    void show_limit(int limit);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void count();
    void place();

    QLineEdit& field_;
    QLabel* text_;
    int limit_ = 0;
};

}  // namespace kalco::app
