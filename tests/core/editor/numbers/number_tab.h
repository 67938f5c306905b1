#pragma once

#include <string>
#include <vector>

#include "disc/numbers.h"
#include "editor/numbers/number_editor.h"
#include "support/editor_run.h"

namespace kalco::number_tests {

using Entries = std::vector<std::string>;

using test::exported;
using test::saved;

/// The folder of the side files, as it is named on the disk.
inline const std::string folder = "N\xC2\xB0 Maglia";

Entries entries_of(const std::vector<int>& numbers);
/// The numbers first, first + 1, ... of 23 players.
Entries rising_from(int first);
Entries all_at(int number);
std::string joined(const Entries& entries);

/// An image whose nations have the numbers 1 to 23 in roster order, and whose clubs and default team 31 to 53.
const std::string& numbered_image();
/// The same with other bytes in the record of a row.
std::string numbered_image(int row, const std::string& bytes);

/// The editor with its sixth tab open, used as a user uses it.
class NumberTab : public test::EditorRun {
public:
    explicit NumberTab(const std::string& image = numbered_image());

    void choose(int row) { EXPECT_EQ(user::pick(form, form.cboSQNum, row), user::Outcome::done); }
    void choose_player_of_tab(int row) { EXPECT_EQ(user::pick(form, form.ListName, row), user::Outcome::done); }
    /// Selects the player, types the number and presses the button.
    void give(int row, const std::string& number);
    void import_line(const std::string& contents) { import(form.cmdImpNum, contents); }

    std::vector<int> cells_in_use();
    std::string record(int row) const;
};

}  // namespace kalco::number_tests
