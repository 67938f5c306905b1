#pragma once

#include <array>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/tools/search/player_columns.h"
#include "work/report/report.h"

namespace kalco::app {

/// What the players shown have in common. As it is made it fits every player.
struct PlayerWish {
    std::string name;          ///< Part of the name, UTF-8; case and accents apart.
    std::optional<Team> team;  ///< Of the roster, or a club that links to the player; the default list for the pool.
    std::optional<int> role;   ///< By the order of role_texts.
    std::array<int, skill_count> least{};
};

/// All players of a disc, filtered and sorted. What is compared is made ready once, so that each letter typed costs
/// little.
class PlayerSearch {
public:
    /// Other players, with the wish and the sorting that are there.
    void set_report(Report report);
    void set_wish(const PlayerWish& wish);
    /// Equals stay as they are shown. Players without a cost come last both ways.
    void sort(int column, bool falling);
    /// Back to the disc's order.
    void unsort();

    const Report& report() const { return report_; }
    /// Rows of Report::players.
    const std::vector<int>& shown() const { return shown_; }

private:
    /// Stands for what is not there.
    static constexpr int missing = std::numeric_limits<int>::max();

    struct Keys {
        std::string name;                               ///< Folded.
        std::array<int, player_column::count> order{};  ///< By column: the number, or the place among all texts.
        int role = -1;                                  ///< By the order of role_texts.
    };

    static Keys keys_of(const ReportPlayer& player);
    void order_texts();
    void order_anew();
    void order_by(int column, bool falling);
    void filter();
    bool fits(int player) const;

    Report report_;
    std::vector<Keys> keys_;
    std::vector<std::pair<int, bool>> sorts_;  ///< The columns sorted by, the last one first among equals.
    std::vector<int> order_;                   ///< All players, sorted.
    PlayerWish wish_;
    std::vector<int> shown_;
};

}  // namespace kalco::app
