#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "support/club_tables.h"
#include "support/editor_run.h"
#include "support/filled_disc.h"

/// What the tests of the Master League share: the printed places of clubs and pool, and the tab as a user uses it.
namespace kalco::league_tests {

using Texts = std::vector<std::string>;

using test::printed_club;
using test::printed_clubs;
using test::printed_copies;
using test::printed_link_position;
using test::PrintedClub;
using test::PrintedCopies;
using test::PrintedCopy;
using test::saved;

/// The image with digits laid over a club's link table, as many bytes as they give.
std::string with_links(std::string image, int club, const std::string& digits);

/// The image with ten bytes of a pool row's name, or its record; fewer bytes leave the rest alone.
std::string with_pool_name(std::string image, int row, const std::string& bytes);
std::string with_pool_record(std::string image, int row, const std::string& bytes);

/// What a renaming leaves: the short text, so many zeroes, the coded name and the copies.
struct Renaming {
    std::string short_text;
    std::size_t cleared;
    std::string coded;
    std::string copy_text;
};
std::string renamed(std::string image, int club, const Renaming& names);

/// A club's name in the filled image as lblNameML shows it, with the blanks of its padding.
std::string shown_club_name(int club);

std::string bytes_of(const std::string& digits);

/// The editor with its second tab open.
class LeagueRun : public test::EditorRun {
public:
    explicit LeagueRun(const std::string& image = test::filled_image());

    void select_tab(int tab) { EXPECT_EQ(user::select_tab(form, tab), user::Outcome::done); }
    void pick(ComboBox& combo, int row) { EXPECT_EQ(user::pick(form, combo, row), user::Outcome::done); }
    void pick(ListBox& list, int row) { EXPECT_EQ(user::pick(form, list, row), user::Outcome::done); }
    void double_click(ListBox& list, int row) { EXPECT_EQ(user::double_click(form, list, row), user::Outcome::done); }
    bool refuses(Control& control) { return user::click(form, control) == user::Outcome::disabled; }
    /// Double clicks on rows of the pool.
    void pick_players(const std::vector<int>& rows);
};

/// The rows of a list, for comparing.
inline const Texts& rows_of(const ListBox& list) {
    return list.items();
}

/// Rows of the pool that can be picked, those whose name or record crosses a sector end among them: 0, 10, 148, 319,
/// 408 at the places 0, 1, 2, 3 and 22.
const std::vector<int>& odd_picks();

/// The codes of rows of the pool, one behind the other.
std::string joined_codes(const std::vector<int>& rows);

}  // namespace kalco::league_tests
