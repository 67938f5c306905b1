#pragma once

#include <QStringList>
#include <QWidget>

namespace kalco::app {

class PitchNames;

/// An outfield player on the pitch: a shirt with the role's label, coloured by line. Its place is in form units.
class MarkerView : public QWidget {
    Q_OBJECT

public:
    explicit MarkerView(QWidget* parent = nullptr);

    void show_caption(const QString& caption);
    void show_selected(bool selected);
    void show_place(int left, int top);

    const QString& caption() const { return caption_; }
    bool selected() const { return selected_; }
    int left_units() const { return left_; }
    int top_units() const { return top_; }

Q_SIGNALS:
    void pressed();
    /// The mouse has dragged the marker to a wished place in form units.
    void dragged(int left, int top);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QString caption_;
    bool selected_ = false;
    int left_ = 0;
    int top_ = 0;
    QPoint grip_;
};

/// The pitch, own goal at the left, with the markers as its child widgets.
class PitchView : public QWidget {
    Q_OBJECT

public:
    /// What the places of the markers are measured in.
    static constexpr int units_wide = 4920;
    static constexpr int units_high = 3480;

    explicit PitchView(QWidget* parent = nullptr);

    /// The names of the first eleven, the keeper first; empty for none. They stand below the shirts where there is
    /// room.
    void show_names(const QStringList& names);
    /// Those that are shown now, and where.
    const PitchNames& names() const { return *names_; }

    void place(MarkerView& marker) const;
    /// The place in form units of a marker whose top left corner stands at a point of this widget.
    QPoint units_at(QPoint corner) const;

    QSize sizeHint() const override { return {620, 440}; }
    QSize minimumSizeHint() const override { return {400, 290}; }

Q_SIGNALS:
    /// An arrow key: -1, 0 or 1 step to the right and downward.
    void stepped(int right, int down);
    /// Page Down and Page Up: to the next (1) or previous (-1) marker.
    void turned(int step);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QRectF grass() const;
    QSizeF marker_size() const;
    QRectF keeper() const;
    void place_names();

    PitchNames* names_;
};

}  // namespace kalco::app
