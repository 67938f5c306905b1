#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <string>
#include <vector>

#include "app/support/test_window.h"
#include "app/tools/search/search_window.h"

namespace kalco::test {

/// The search for players over an editor, opened with its key, and what it shows. It goes with the editor's window.
class Search {
public:
    explicit Search(TestWindow& editor);

    app::SearchWindow& window() const { return *window_; }
    template <typename Widget>
    Widget& field(const char* name) const {
        return *window_->findChild<Widget*>(QString::fromLatin1(name));
    }
    QTableView& table() const { return field<QTableView>("tablePlayers"); }
    QTableView& comparison() const { return field<QTableView>("tableComparison"); }
    QString told() const { return field<QLabel>("labelCount").text(); }

    /// The players in the table from above: rows of the players' sheet.
    std::vector<int> players() const;
    /// The texts of a column from above.
    QStringList column(int column) const;
    /// The player with the frame, -1 without one.
    int chosen() const;

    /// Real input. The text takes the place of what was there.
    void type_name(const QString& text) const;
    void pick(const char* combo, int row) const;
    void press(const char* button) const;
    void sort_by(int column) const;
    void choose(int player, int column = 0) const;
    void tick(int player) const;
    void key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

private:
    app::SearchWindow* window_ = nullptr;
};

/// The search's window; nullptr when it is closed.
app::SearchWindow* open_search();

}  // namespace kalco::test
