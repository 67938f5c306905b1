#include "app/drafts/typing.h"

#include <algorithm>

#include "editor/window/user.h"

namespace kalco::app {
namespace {

template <typename List>
bool go_to(frmKalco& form, List& list, int row) {
    if (list.row() == row) return true;
    if (row >= static_cast<int>(list.items().size())) return false;
    return user::pick(form, list, row) == user::Outcome::done;
}

}  // namespace

const std::string& text_of(const Control& field) {
    if (field.kind() == Kind::combo_box) return static_cast<const ComboBox&>(field).text();
    return static_cast<const TextBox&>(field).text();
}

void type_text(frmKalco& form, Control& field, const std::string& text) {
    if (field.kind() == Kind::text_box) {
        user::type(form, static_cast<TextBox&>(field), text);
        return;
    }
    auto& combo = static_cast<ComboBox&>(field);
    const auto found = std::find(combo.items().begin(), combo.items().end(), text);
    if (found != combo.items().end()) user::pick(form, combo, static_cast<int>(found - combo.items().begin()));
}

bool go_to_row(frmKalco& form, ComboBox& list, int row) {
    return go_to(form, list, row);
}

bool go_to_row(frmKalco& form, ListBox& list, int row) {
    return go_to(form, list, row);
}

}  // namespace kalco::app
