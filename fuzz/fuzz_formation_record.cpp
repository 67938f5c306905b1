// Any 30 bytes as a formation, and any clicks on it: the first byte chooses the team, 30 are its record, each further
// one is an action, an arrow up to 32 times. At the end the formation is saved and read again.

#include <algorithm>

#include "disc/formation.h"
#include "fuzz/desk.h"

using namespace kalco;

namespace {

constexpr int most_actions = 64;

void press(fuzz::Desk& desk, CommandButton& arrow, int times) {
    for (int i = 0; i < times; ++i) desk.click(arrow);
}

void act(fuzz::Desk& desk, int action) {
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
    if (size < 1 + formation_bytes) return 0;
    fuzz::Bytes bytes(data, size);
    const TeamRow row(bytes.next() % TeamRow::count);
    const Pieces field = formation_field(row);
    std::string record;
    for (int i = 0; i < formation_bytes; ++i) record += static_cast<char>(bytes.next());
    const std::string actions = bytes.rest().substr(0, most_actions);

    static fuzz::FormationDesk desk;
    desk.begin();
    frmKalco& form = desk.form;
    form.image.write(field, record);
    desk.forget_writes();
    user::pick(form, form.cboSeqSQ2, row.value());
    for (const char action : actions) act(desk, static_cast<unsigned char>(action));
    const bool plain = !has_unknown_role(form) && !has_negative_value(form);
    desk.click(form.cmdModifica);

    fuzz::require(desk.disc.size() == fuzz::FormationDesk::image_bytes, "the image keeps its size");
    fuzz::require(desk.first_written() >= field.position(), "nothing in front of the record changes");
    if (!plain) return 0;

    const auto x = form.FormationX;
    const auto y = form.FormationY;
    user::pick(form, form.cboSeqSQ2, row.value());
    fuzz::require(form.FormationX == x && form.FormationY == y, "what was saved is read again");
    if (actions.empty()) fuzz::require(form.image.read(field) == record, "an untouched formation is saved as it was");
    return 0;
}
