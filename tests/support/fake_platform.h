#pragma once

#include <deque>
#include <stdexcept>
#include <string>
#include <vector>

#include "editor/window/platform.h"

namespace kalco::test {

/// Answers from queues and remembers what was asked.
class FakePlatform final : public Platform {
public:
    struct Message {
        std::string text;
        Icon icon;
        Buttons buttons;
    };
    struct Dialog {
        std::string filter;
        std::string initial_directory;
    };

    Answer message(const std::string& text, Icon icon, Buttons buttons) override {
        messages.push_back({text, icon, buttons});
        if (buttons == Buttons::ok) return Answer::ok;
        if (answers.empty()) throw std::logic_error("no answer for the question: " + text);
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::string open_dialog(const std::string& filter, const std::string& initial_directory) override {
        dialogs.push_back({filter, initial_directory});
        if (choices.empty()) throw std::logic_error("no path for the dialog: " + filter);
        std::string choice = choices.front();
        choices.pop_front();
        return choice;
    }

    std::string program_directory() const override { return home; }
    void miss_directory(const std::string& path) override { missed.push_back(path); }

    std::deque<Answer> answers;
    std::deque<std::string> choices;
    std::string home = ".";
    std::vector<Message> messages;
    std::vector<Dialog> dialogs;
    std::vector<std::string> missed;
};

}  // namespace kalco::test
