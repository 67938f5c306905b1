#pragma once

#include <QStringList>
#include <QWidget>
#include <vector>

namespace kalco::app {

/// The players' names below their shirts, above all that stands on the pitch and under no mouse.
class PitchNames : public QWidget {
    Q_OBJECT

public:
    explicit PitchNames(QWidget* parent = nullptr);

    void show_names(const QStringList& names) { names_ = names; }
    /// One shirt for each name, in their order. A name that would lie on another one or on another shirt, or leave the
    /// grass, is left out; all are where the shirts are small.
    void place(const std::vector<QRect>& shirts, const QRect& grass);

    struct Placed {
        QString name;
        QRect area;
    };
    const std::vector<Placed>& placed() const { return placed_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont name_font(int shirt_height) const;

    QStringList names_;
    std::vector<Placed> placed_;
    QFont font_;
};

}  // namespace kalco::app
