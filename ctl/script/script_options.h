#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>

#include "ctl/script/script_platform.h"

namespace kalco::script {

/// The command line of the runner: `script [--home DIR] [FILE]`.
struct ScriptOptions {
    std::string home;  ///< Empty: the program's own directory.
    std::string file;  ///< Empty: standard input.
};

/// Declares the sub-command; its options must outlive the parsing.
CLI::App& add_script_command(CLI::App& app, ScriptOptions& options);

/// Plays the script of the options with what `play` does of it, and returns the exit status.
int play_script(const ScriptOptions& options, const std::function<int(std::istream&, ScriptPlatform&)>& play);

}  // namespace kalco::script
