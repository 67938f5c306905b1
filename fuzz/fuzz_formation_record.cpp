// Any 30 bytes as a formation, and any clicks on it: the first byte chooses the team, 30 are its record, each further
// one is an action, an arrow up to 32 times. At the end the formation is saved and read again.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "disc/formation.h"
#include "formation_desk.h"

namespace {

using namespace kalco;

constexpr std::size_t record_start = 1;
constexpr std::size_t actions_start = record_start + formation_bytes;
constexpr std::size_t most_actions = 64;

void press(fuzzing::FormationDesk& desk, CommandButton& arrow, int times) {
    for (int i = 0; i < times; ++i) desk.click(arrow);
}

void act(fuzzing::FormationDesk& desk, int action) {
    frmKalco& form = desk.form;
    const int choice = action / 8;
    switch (action % 8) {
        case 0: desk.click(form.lblGioc(first_marker + choice % outfield_players)); break;
        case 1: press(desk, form.cmdLeft, choice + 1); break;
        case 2: press(desk, form.cmdRight, choice + 1); break;
        case 3: press(desk, form.cmdUp, choice + 1); break;
        case 4: press(desk, form.cmdDown, choice + 1); break;
        case 5: user::pick(form, form.cboRL, choice % static_cast<int>(role_labels.size())); break;
        case 6: user::pick(form, form.cboMod, choice % static_cast<int>(module_rows.size())); break;
        default: choice % 2 == 0 ? desk.click(form.cmdExport) : desk.click(form.cmdModifica); break;
    }
}

bool has_unknown_role(const frmKalco& form) {
    for (int k = first_marker; k <= last_marker; ++k) {
        if (form.lblGioc(k).caption() == unknown_role_label) return true;
    }
    return false;
}

bool has_negative_value(const frmKalco& form) {
    const auto negative = [](int value) { return value < 0; };
    return std::any_of(form.FormationX.begin(), form.FormationX.end(), negative) ||
           std::any_of(form.FormationY.begin(), form.FormationY.end(), negative);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < actions_start) return 0;
    static fuzzing::FormationDesk desk;
    desk.begin();
    const int row = data[0] % TeamRow::count;
    const Pieces field = formation_field(TeamRow(row));
    desk.form.image.write(field, {reinterpret_cast<const char*>(data) + record_start, formation_bytes});
    const std::string before = desk.tables();

    user::pick(desk.form, desk.form.cboSeqSQ2, row);
    for (std::size_t i = actions_start; i < std::min(size, actions_start + most_actions); ++i) act(desk, data[i]);
    const bool plain = !has_unknown_role(desk.form) && !has_negative_value(desk.form);
    desk.click(desk.form.cmdModifica);

    const std::string after = desk.tables();
    fuzzing::require(after.size() == before.size(), "the image keeps its size");
    const std::size_t start = fuzzing::FormationDesk::place(field.position());
    fuzzing::require(after.compare(0, start, before, 0, start) == 0, "nothing in front of the record changes");
    if (!plain) return 0;

    const auto x = desk.form.FormationX;
    const auto y = desk.form.FormationY;
    user::pick(desk.form, desk.form.cboSeqSQ2, row);
    fuzzing::require(desk.form.FormationX == x && desk.form.FormationY == y, "what was saved is read again");
    if (size == actions_start) fuzzing::require(after == before, "an untouched formation is saved as it was");
    return 0;
}
