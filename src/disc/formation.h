#pragma once

#include <string>
#include <string_view>

#include "disc/formation_facts.h"

/// Formations as values: texts of digits, labels, places on the screen.
namespace kalco {

/// The label of a role's two digits (upper case); "???" for a code outside the table.
std::string_view role_label(std::string_view code);
/// The two digits of a label, empty for one outside the table.
std::string role_code(std::string_view label);

/// Where a marker stands for an X or Y value: the nearest form unit, halves to the even one.
int screen_left(int x);
int screen_top(int y);

/// The module of a name, nullptr when there is none.
const ModuleRow* module_named(std::string_view name);

}  // namespace kalco
