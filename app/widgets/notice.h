#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace kalco::app {

/// A standing line that the user should not miss, with a button for the remedy where there is one. Away while it has
/// nothing to say.
class Notice : public QFrame {
    Q_OBJECT

public:
    explicit Notice(QWidget* parent = nullptr);

    void show_notice(const QString& text, const QString& remedy = {});
    QString text() const;
    QPushButton& remedy() const { return *remedy_; }

Q_SIGNALS:
    void remedy_pressed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* text_;
    QPushButton* remedy_;
};

}  // namespace kalco::app
