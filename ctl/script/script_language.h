#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// The language of `kalcoctl script`: one user action a line.
namespace kalco::script {

/// A script that can't be run; the runner adds the number of the line.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum class Verb { start, choose, answer, tab, pick, double_click, click, type, focus, undo, redo, show, close };

struct Action {
    Verb verb = Verb::start;
    std::string control;             ///< pick, double_click, click, type, focus
    std::string text;                ///< type: Latin-1; choose: a path in UTF-8; answer: its word
    bool cancelled = false;          ///< choose
    int number = 0;                  ///< tab; the row of pick and double_click
    std::vector<std::string> names;  ///< show
};

/// The action of a line; nothing for an empty line and a comment. Throws ScriptError.
std::optional<Action> parse_line(std::string_view line);

/// How a complaint shows what stands in a script: without control characters, and not all of it when it is long.
std::string echoed(std::string_view text);

/// UTF-8 to one byte a character; what Latin-1 does not have becomes "?".
std::string latin1_of_utf8(std::string_view text);

}  // namespace kalco::script
