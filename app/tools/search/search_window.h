#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "app/tools/desk.h"
#include "app/tools/search/comparison_model.h"
#include "app/tools/search/players_model.h"

class QAction;

namespace Ui {
class SearchWindow;
}

namespace kalco::app {

/// All players of the open image in a window of its own, which stays beside the editor's: filtered as one types, sorted
/// by any column, two or three side by side. It follows every save.
class SearchWindow : public QDialog {
    Q_OBJECT

public:
    explicit SearchWindow(Desk& desk);
    ~SearchWindow() override;

    /// The name is ready to be typed.
    void take_name();

private:
    /// Where the table stands when its rows are others: as it stood, or so that the chosen player is seen.
    enum class Scroll { stay, to_chosen };

    void build_table();
    void build_comparison();
    void build_actions();
    void fit_columns();

    void read();
    void filter();
    void change_rows(Scroll scroll, const std::function<void()>& change);
    /// In the column where the frame was before.
    void choose(int player, const QModelIndex& before);
    void show_ticks();
    void show_count();
    void refuse_tick();
    void name_sorting();

    int chosen_player() const;
    void sort_by_chosen_column();
    void toggle_tick();
    void take_from_comparison();
    void go();

    std::unique_ptr<Ui::SearchWindow> ui_;
    Desk& desk_;
    PlayersModel players_;
    ComparisonModel comparison_{players_};
    QAction* sorting_ = nullptr;
    int compared_ = 0;
    QString trouble_;  ///< Why there are no players.
};

}  // namespace kalco::app
