#pragma once

#include <iosfwd>
#include <string>

#include "ctl/script/script_platform.h"
#include "ctl/script/stage.h"

namespace kalco::script {

/// Exit statuses of a script.
inline constexpr int exit_done = 0;
inline constexpr int exit_failed = 1;
inline constexpr int exit_unrunnable = 2;

/// Plays a script on a stage whose form stands on `platform`, printing to the stream that the platform prints to. A
/// script that can't be run is told on `complaints`, with the number of its line. Returns the exit status.
int run_script(std::istream& script, Stage& stage, ScriptPlatform& platform, std::ostream& complaints);

}  // namespace kalco::script
