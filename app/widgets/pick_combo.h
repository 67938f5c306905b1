#pragma once

#include <QComboBox>
#include <QStringList>

class QStyleOptionComboBox;
class QStylePainter;

namespace kalco::app {

/// A pick list whose field may show a text that is not among its rows. The wheel never turns it. The dynamic property
/// "pictures" names the drawings of its rows, with "*" for the row's text.
class PickCombo : public QComboBox {
    Q_OBJECT

public:
    explicit PickCombo(QWidget* parent = nullptr);

    void set_rows(const QStringList& rows);
    QStringList rows() const;
    /// `row` is -1 for a text that is not among the rows.
    void show_text(const QString& text, int row);
    const QString& shown_text() const { return text_; }

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    virtual void paint_field(QStylePainter& painter, QStyleOptionComboBox& option);

    QRect field_rect(const QStyleOptionComboBox& option) const;

private:
    QString text_;
};

/// A skill from 12 to 19: the number with a bar behind it, so that skills can be compared at a glance.
class SkillCombo : public PickCombo {
    Q_OBJECT

public:
    using PickCombo::PickCombo;

protected:
    void paint_field(QStylePainter& painter, QStyleOptionComboBox& option) override;
};

/// The colour of a skill between 0 (lowest) and 1, readable on a light and on a dark base.
QColor skill_colour(double level);

}  // namespace kalco::app
