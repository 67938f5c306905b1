#pragma once

#include <string>

#include "editor/window/side_files.h"

namespace kalco {

enum class Icon { information, warning, stop };
enum class Buttons { ok, yes_no_cancel };
enum class Answer { ok, yes, no, cancel };

/// What the window model asks of the machine around it. Message texts are Latin-1, paths are UTF-8.
class Platform {
public:
    virtual ~Platform() = default;

    virtual Answer message(const std::string& text, Icon icon, Buttons buttons) = 0;
    /// Asks for an existing file; empty when the user cancels. `filter` is pairs of a label and a pattern, divided by
    /// "|"; the first pair is chosen.
    virtual std::string open_dialog(const std::string& filter, const std::string& initial_directory) = 0;
    /// The directory below which the side files lie.
    virtual std::string program_directory() const = 0;
    /// What keeps the side files.
    virtual SideFiles& side_files() const { return disk_files(); }
    /// A side-file directory can't be made while an image is opened, so that the rest of the opening is left out. A
    /// window tells its user what that means.
    virtual void miss_directory(const std::string& path) { static_cast<void>(path); }
};

}  // namespace kalco
