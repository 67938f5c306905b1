#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include "ctl/script/script_platform.h"

namespace kalco::script {

/// The command line of the runner: `script [--home DIR] [FILE]`.
struct ScriptOptions {
    std::optional<std::string> home;  ///< Without it: the program's own directory.
    std::string file;                 ///< Empty or "-": standard input.
};

/// Declares the sub-command; its options must outlive the parsing.
CLI::App& add_script_command(CLI::App& app, ScriptOptions& options);

/// Plays a script; why it can't be run goes to `complaints`. Returns the exit status.
using Player = std::function<int(std::istream& script, ScriptPlatform& platform, std::ostream& complaints)>;

/// Plays the script of the options and returns the exit status. Throws FileError, before anything is played, for a
/// script that can't be opened and a home that is no directory or can't be written.
int play_script(const ScriptOptions& options, const Player& play);

}  // namespace kalco::script
