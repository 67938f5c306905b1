#include "core/editor/kickers/kicker_tab.h"

#include "support/printed_rows.h"

namespace kalco::kicker_tests {

ImagePos printed_position(int row) {
    return test::printed_set_pieces(row)[0].position;
}

const std::string& kicker_image() {
    static const std::string image = [] {
        std::string made = test::filled_image();
        for (int row = 0; row < 87; ++row) test::put(made, printed_position(row), "\x02\x05\x03\x03\x06\x07");
        return made;
    }();
    return image;
}

std::string kicker_image(int row, const std::string& bytes) {
    std::string image = kicker_image();
    test::put(image, printed_position(row), bytes);
    return image;
}

KickerTab::KickerTab(const std::string& image) : EditorRun(image) {
    EXPECT_EQ(user::select_tab(form, tab::kickers), user::Outcome::done);
}

std::array<ControlArray<OptionButton>*, 6> KickerTab::columns() {
    return {&form.opCPC, &form.opCPL, &form.opCAD, &form.opCAS, &form.opRIG, &form.opCAP};
}

std::vector<int> KickerTab::selected() {
    std::vector<int> rows;
    for (auto* column : columns()) {
        int found = -1;
        for (int row = 0; row <= 10; ++row) {
            // A second one shows as 99.
            if ((*column)(row).value()) found = found == -1 ? row : 99;
        }
        rows.push_back(found);
    }
    return rows;
}

}  // namespace kalco::kicker_tests
