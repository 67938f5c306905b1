#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStringList>
#include <functional>

namespace kalco::app {

/// What a list shows beside a row's text.
struct RowNote {
    QString note;         ///< At the right end, muted.
    bool muted = false;   ///< A row that is not for choosing.
    bool marked = false;  ///< A row that was chosen already.
};

/// The rows of a list box. The text of a row is what the model of the window holds, unchanged.
class RowsModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;

    void set_rows(QStringList rows);
    const QStringList& rows() const { return rows_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QStringList rows_;
};

/// A list box that tells what the user does and shows nothing by itself: the selected row comes from the model of the
/// window. The dynamic property "numbered" shows the number of each row; with "deleteErases" the Delete key and not
/// Enter stands for the double click; with "onlyList" the selected row is outlined and no more, since it chooses
/// nothing.
class RowsView : public QListView {
    Q_OBJECT

public:
    explicit RowsView(QWidget* parent = nullptr);

    void set_rows(const QStringList& rows);
    const QStringList& rows() const { return rows_.rows(); }
    void set_row(int row);
    int row() const { return currentIndex().row(); }

    bool numbered() const { return property("numbered").toBool(); }
    bool only_list() const { return property("onlyList").toBool(); }
    std::function<RowNote(int row)> note;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void picked(int row);
    /// The second press of a double click.
    void pressed_again(int row);
    /// Enter or, where that erases, Delete: a double click by the keyboard.
    void confirmed(int row);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    RowsModel rows_;
    int shown_row_ = -1;
};

}  // namespace kalco::app
