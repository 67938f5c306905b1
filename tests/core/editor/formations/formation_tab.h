#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "editor/editor.h"
#include "editor/window/user.h"
#include "support/fake_platform.h"
#include "support/memory_storage.h"

namespace kalco::formation_tests {

inline const std::string saved = "Salvataggio effettuato con successo";
inline const std::string exported = "File creato con successo";

/// One piece of a field as the tables print it.
struct Stretch {
    ImagePos position;
    int bytes;

    friend bool operator==(const Stretch&, const Stretch&) = default;
};
using Stretches = std::vector<Stretch>;

/// Where the tables print the records of a row.
Stretches printed_formation(int row);
Stretches printed_bars(int row);
Stretches places_of(const Pieces& field);

/// The position of a byte of the user data, counted sector by sector.
ImagePos user_byte_position(UserOffset offset);

/// An image without zero bytes and blanks, different at every place, and with names for a few teams.
const std::string& filled_image();

/// Ten columns of a record.
struct Record {
    std::array<int, 10> roles;
    std::array<int, 10> x;
    std::array<int, 10> y;

    std::string bytes() const;
};
/// A record with roles of the table, different for each row.
Record record_of_row(int row);
std::string bytes_of(const std::string& hex);
std::string hex_of(const std::string& bytes);

void put(std::string& image, ImagePos position, const std::string& bytes);
/// Bytes laid over places one after the other; a whole place takes all that is left.
void put(std::string& image, const Stretches& places, const std::string& bytes);
std::string bytes_at(const std::string& image, const Stretches& places);

/// The place of a marker's player in the columns of a record.
std::size_t at(int marker);
/// An image in which the row holds the record.
std::string image_with(int row, const Record& record);
/// The image after a save of the text: what a short text lacks stays as it was.
std::string image_after(std::string image, int row, const std::string& text);

/// Equal, or which bytes differ.
::testing::AssertionResult same_bytes(const std::string& actual, const std::string& expected);

/// The number of the run-time error that leaves the steps, 0 for none.
int error_of(const std::function<void()>& steps);

/// A directory that goes away with its owner.
class Home {
public:
    Home();
    ~Home();
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

    const std::string& path() const { return path_; }
    std::string write(const std::string& name, const std::string& contents) const;
    bool has(const std::string& name) const;
    std::string read(const std::string& name) const;

private:
    std::string path_;
};

/// The editor on an image in memory with its fifth tab open, used as a user uses it.
class FormationTab {
public:
    explicit FormationTab(std::string image = filled_image());

    void choose(int row) { pick(form.cboSeqSQ2, row); }
    void pick(ComboBox& combo, int row) { EXPECT_EQ(user::pick(form, combo, row), user::Outcome::done); }
    void click(Control& control) { EXPECT_EQ(user::click(form, control), user::Outcome::done); }
    bool refuses(Control& control) { return user::click(form, control) == user::Outcome::disabled; }
    void select_tab(int tab) { EXPECT_EQ(user::select_tab(form, tab), user::Outcome::done); }
    /// Clicks until nothing moves any more; the number of moves.
    int press_until_refused(CommandButton& arrow);
    /// The texts of the messages since the last call.
    std::vector<std::string> told();
    std::string captions() const;
    std::string bar_values() const;
    std::string bar_captions() const;

    test::Disc disc;
    test::FakePlatform platform;
    Home home;
    Editor editor;
    frmKalco& form = editor.form;
};

void expect_record_shown(const FormationTab& tab, const Record& record);
/// The marker whose colours are exchanged, 0 for none.
int selected_marker(const frmKalco& form);

}  // namespace kalco::formation_tests
