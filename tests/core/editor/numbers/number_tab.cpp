#include "core/editor/numbers/number_tab.h"

#include "disc/codec/hextext.h"

namespace kalco::number_tests {

Entries entries_of(const std::vector<int>& numbers) {
    Entries entries;
    for (const int number : numbers) entries.push_back(number_entry(number));
    return entries;
}

Entries rising_from(int first) {
    Entries entries;
    for (int player = 0; player < 23; ++player) entries.push_back(number_entry(first + player));
    return entries;
}

Entries all_at(int number) {
    return Entries(23, number_entry(number));
}

std::string joined(const Entries& entries) {
    std::string line;
    for (const std::string& entry : entries) line += entry;
    return line;
}

const std::string& numbered_image() {
    static const std::string image = [] {
        std::string made = test::filled_image();
        for (int row = 0; row < 87; ++row) {
            const std::string digits =
                row < 54 ? pack_national_numbers(rising_from(1)) : pack_club_numbers(rising_from(31));
            test::put(made, number_field(TeamRow(row)).position(), bytes_of_digits(digits));
        }
        return made;
    }();
    return image;
}

std::string numbered_image(int row, const std::string& bytes) {
    std::string image = numbered_image();
    test::put(image, number_field(TeamRow(row)).position(), bytes);
    return image;
}

NumberTab::NumberTab(const std::string& image) : EditorRun(image) {
    EXPECT_EQ(user::select_tab(form, tab::numbers), user::Outcome::done);
}

void NumberTab::give(int row, const std::string& number) {
    choose_player_of_tab(row);
    type(form.txtNumMod, number);
    click(form.cmdModNum);
}

std::vector<int> NumberTab::cells_in_use() {
    std::vector<int> cells;
    for (int number = 1; number <= 99; ++number) {
        if (form.lblNum(number).in_use()) cells.push_back(number);
    }
    return cells;
}

std::string NumberTab::record(int row) const {
    const Pieces field = number_field(TeamRow(row));
    return disc.at(field.position(), static_cast<std::size_t>(field.bytes()));
}

}  // namespace kalco::number_tests
