#pragma once

#include <QWidget>

namespace kalco::app {

/// A cell of the board of shirt numbers: taken, free, or beyond what the team can have.
class NumberCellView : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int number READ number WRITE set_number)

public:
    explicit NumberCellView(QWidget* parent = nullptr);

    int number() const { return number_; }
    void set_number(int number);
    bool in_use() const { return in_use_; }
    void show_in_use(bool in_use);
    /// The number of the selected player.
    void show_marked(bool marked);
    /// Whether a player of the shown team can have it.
    void show_possible(bool possible);
    bool possible() const { return possible_; }
    /// Who has it; empty for nobody.
    void show_wearer(const QString& wearer);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void pressed(int number);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void tell();

    int number_ = 0;
    bool in_use_ = false;
    bool marked_ = false;
    bool possible_ = true;
    QString wearer_;
};

}  // namespace kalco::app
