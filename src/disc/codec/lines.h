#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The lines of the small text files.
namespace kalco {

/// They end at CR LF, CR or LF; a last line without an end counts.
std::vector<std::string> lines_of(std::string_view text);

/// Each line is closed by CR LF.
std::string text_of_lines(const std::vector<std::string>& lines);

}  // namespace kalco
