#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "disc/formation.h"
#include "support/editor_run.h"
#include "support/printed_rows.h"

namespace kalco::formation_tests {

using test::error_of;
using test::exported;
using test::places_of;
using test::printed_bars;
using test::printed_formation;
using test::put;
using test::same_image;
using test::saved;
using test::Stretches;

/// The position of a byte of the user data, counted sector by sector.
ImagePos user_byte_position(UserOffset offset);

/// An image without zero bytes and blanks, different at every place, and with names for a few teams.
const std::string& filled_image();

/// A formation with roles of the table, different for each row.
Formation record_of_row(int row);

/// Bytes laid over places one after the other; a whole place takes all that is left.
void put(std::string& image, const Stretches& places, const std::string& bytes);
std::string bytes_at(const std::string& image, const Stretches& places);

/// The place of a marker's player in the columns of a record.
std::size_t at(int marker);
/// An image in which the row holds the record.
std::string image_with(int row, const Formation& record);
/// The image after a save of the text: what a short text lacks stays as it was.
std::string image_after(std::string image, int row, const std::string& text);

/// The editor with its fifth tab open, used as a user uses it.
class FormationTab : public test::EditorRun {
public:
    explicit FormationTab(const std::string& image = filled_image());

    void choose(int row) { pick(form.cboSeqSQ2, row); }
    void pick(ComboBox& combo, int row) { EXPECT_EQ(user::pick(form, combo, row), user::Outcome::done); }
    bool refuses(Control& control) { return user::click(form, control) == user::Outcome::disabled; }
    void select_tab(int tab) { EXPECT_EQ(user::select_tab(form, tab), user::Outcome::done); }
    /// Clicks until nothing moves any more; the number of moves.
    int press_until_refused(CommandButton& arrow);
    std::string captions() const;
    std::string bar_values() const;
    std::string bar_captions() const;
};

void expect_record_shown(const FormationTab& tab, const Formation& record);
/// The marker whose colours are exchanged, 0 for none.
int selected_marker(const frmKalco& form);

}  // namespace kalco::formation_tests
