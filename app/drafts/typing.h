#pragma once

#include <string>

#include "editor/window/frmKalco.h"

/// Fields as texts, and how a user brings a text into one.
namespace kalco::app {

/// The text of a text box or combo box.
const std::string& text_of(const Control& field);

/// Types the text into a text box, or picks its row in a combo box.
void type_text(frmKalco& form, Control& field, const std::string& text);

/// Picks the row unless it is selected already. False when the list takes no pick now.
bool go_to_row(frmKalco& form, ComboBox& list, int row);
bool go_to_row(frmKalco& form, ListBox& list, int row);

}  // namespace kalco::app
