#pragma once

#include <deque>
#include <iosfwd>
#include <optional>
#include <string>

#include "editor/window/platform.h"

namespace kalco::script {

/// Answers dialogs and questions from the queues that the script fills, and prints each as a line. Throws ScriptError
/// when the queue that is asked is empty.
class ScriptPlatform : public Platform {
public:
    ScriptPlatform(std::string home, std::ostream& out) : home_(std::move(home)), out_(out) {}

    Answer message(const std::string& text, Icon icon, Buttons buttons) override;
    std::string open_dialog(const std::string& filter, const std::string& initial_directory) override;
    std::string program_directory() const override { return home_; }

    /// Where the lines are printed.
    std::ostream& out() const { return out_; }

    /// An empty path stands for cancel.
    void queue_choice(std::string path) { choices_.push_back(std::move(path)); }
    void queue_answer(Answer answer) { answers_.push_back(answer); }

private:
    std::string home_;
    std::ostream& out_;
    std::deque<std::string> choices_;
    std::deque<Answer> answers_;
};

}  // namespace kalco::script
