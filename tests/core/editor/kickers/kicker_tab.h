#pragma once

#include <array>
#include <string>
#include <vector>

#include "editor/kickers/kickers_file.h"
#include "editor/kickers/set_pieces.h"
#include "support/editor_run.h"

namespace kalco::kicker_tests {

using Texts = std::vector<std::string>;
using test::EditorRun;

using test::exported;
using test::saved;

/// Where the tables print the record of a row.
ImagePos printed_position(int row);

/// An image in which every team's record holds 2, 5, 3, 3, 6, 7.
const std::string& kicker_image();
/// The same with other bytes from the record of a row on.
std::string kicker_image(int row, const std::string& bytes);

/// The editor with its third tab open, used as a user uses it.
class KickerTab : public EditorRun {
public:
    explicit KickerTab(const std::string& image = kicker_image());

    void choose(int row) { EXPECT_EQ(user::pick(form, form.cboSquadra, row), user::Outcome::done); }
    void import_line(const std::string& contents) { import(form.cmdImpKick, contents); }
    std::string record(int row) const { return disc.at(printed_position(row), 6); }

    /// The columns in the order of the record.
    std::array<ControlArray<OptionButton>*, 6> columns();
    /// The selected row of each column, -1 for none.
    std::vector<int> selected();
};

}  // namespace kalco::kicker_tests
