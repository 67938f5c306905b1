#pragma once

#include <string_view>

/// The manners that all commands of kalcoctl share.
///
/// A command NAME lives in ctl/NAME_command.{h,cpp} and consists of
///   - struct NameOptions: what its command line says;
///   - CLI::App& add_name_command(CLI::App& app, NameOptions& options): declares it; the options outlive the parsing;
///   - int run_name(const NameOptions& options): does it and returns one of the statuses below.
/// ctl/main.cpp lists it. Wrong usage, an escaped exception and output that could not be written are dealt with there.
/// Results go to std::cout; what goes wrong is thrown as FileError (or another std::exception) or told by complain().
namespace kalco::ctl {

/// Exit statuses.
inline constexpr int done = 0;     ///< Nothing to tell.
inline constexpr int no = 1;       ///< The answer is "no": something bad, different, missing or refused.
inline constexpr int trouble = 2;  ///< Wrong usage, a file that can't be used, lost output.

/// Writes `kalcoctl COMMAND: WHAT` on standard error. Where a file is concerned, `what` begins with its path and a
/// colon. Control characters are shown as escapes.
void complain(std::string_view command, std::string_view what);

/// False when anything that was written to standard output did not get where it should.
bool output_arrived();

}  // namespace kalco::ctl
