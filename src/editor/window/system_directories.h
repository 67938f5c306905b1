#pragma once

#include <string_view>

namespace kalco {

/// Whether the system keeps the programs of all users in the directory, an absolute path without links: nobody's side
/// files lie there, whoever may write to it.
bool is_system_program_directory(std::string_view directory);

}  // namespace kalco
