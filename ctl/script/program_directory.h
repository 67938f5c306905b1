#pragma once

#include <string>

namespace kalco::script {

/// The directory of the running program, or the user's data directory for Kalco when side files can't or should not
/// lie there (an installed package). UTF-8.
std::string program_directory();

/// Throws FileError when side files can't lie below the directory: it is none, or can't be written.
void require_writable_directory(const std::string& path);

}  // namespace kalco::script
