#pragma once

#include <string>

namespace kalco::script {

/// The directory of the running program, or the user's data directory for Kalco when that one can't be written (an
/// installed package). UTF-8.
std::string program_directory();

}  // namespace kalco::script
