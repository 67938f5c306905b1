#include "ctl/script/script_runner.h"

#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "ctl/script/script_language.h"
#include "disc/runtime_error.h"

namespace kalco::script {
namespace {

class Runner {
public:
    Runner(Stage& stage, ScriptPlatform& platform, std::ostream& out)
        : stage_(stage),
          form_(stage.form()),
          platform_(platform),
          out_(out) {}

    void perform(const Action& action) {
        if (action.verb == Verb::choose) return platform_.queue_choice(action.text);
        if (action.verb == Verb::answer) return platform_.queue_answer(answer_of(action.text));
        if (action.verb == Verb::start) return start();
        if (!started_) throw ScriptError("the program is not started");
        switch (action.verb) {
            case Verb::tab: return select_tab(action.number);
            case Verb::pick: return pick(action, &Stage::pick);
            case Verb::double_click: return pick(action, &Stage::double_click);
            case Verb::click: return click(action);
            case Verb::type: return type(action);
            case Verb::focus: return focus(action);
            case Verb::undo: return travel("undone", stage_.undo());
            case Verb::redo: return travel("redone", stage_.redo());
            case Verb::show:
                for (const std::string& name : action.names) show(name);
                return;
            default: return stage_.close();
        }
    }

    bool ended() const { return form_.ended.has_value(); }

    /// The end of the script closes the window.
    void finish() {
        if (!ended()) stage_.close();
    }

    void print(const Json& object) { out_ << json_line(object) << '\n'; }

private:
    static Answer answer_of(const std::string& word) {
        if (word == "yes") return Answer::yes;
        return word == "no" ? Answer::no : Answer::cancel;
    }

    void start() {
        if (started_) throw ScriptError("the program is started already");
        started_ = true;
        stage_.start();
    }

    Control& control(const std::string& name) const {
        Control* const found = form_.registry.find(name);
        if (found == nullptr) throw ScriptError("unknown control " + echoed(name));
        return *found;
    }

    /// Prints why a control takes no input now, if it does not.
    bool reached(const Control& control) {
        const user::Outcome outcome = user::reach(form_, control);
        if (outcome == user::Outcome::done) return true;
        Json event;
        event["event"] = "refused";
        event["control"] = control.name();
        event["reason"] = outcome == user::Outcome::disabled ? "disabled" : "hidden";
        print(event);
        return false;
    }

    void select_tab(int tab) {
        if (tab < 0 || tab >= static_cast<int>(form_.SSTab1.captions().size())) {
            throw ScriptError("there is no tab " + std::to_string(tab));
        }
        stage_.select_tab(tab);
    }

    void pick(const Action& action, void (Stage::*choose)(Control&, int)) {
        Control& target = control(action.control);
        int rows = 0;
        if (target.kind() == Kind::combo_box) {
            rows = static_cast<int>(static_cast<ComboBox&>(target).items().size());
        } else if (target.kind() == Kind::list_box) {
            rows = static_cast<ListBox&>(target).count();
        } else {
            throw ScriptError(action.control + " is no combo or list box");
        }
        if (!reached(target)) return;
        if (action.number < 0 || action.number >= rows) {
            throw ScriptError(action.control + " has no row " + std::to_string(action.number));
        }
        (stage_.*choose)(target, action.number);
    }

    void click(const Action& action) {
        Control& target = control(action.control);
        switch (target.kind()) {
            case Kind::command_button:
            case Kind::option_button:
            case Kind::label:
            case Kind::pitch_marker:
            case Kind::number_cell: break;
            default: throw ScriptError(action.control + " is no button, option button or label");
        }
        if (reached(target)) stage_.click(target);
    }

    void type(const Action& action) {
        Control& target = control(action.control);
        if (target.kind() != Kind::text_box) throw ScriptError(action.control + " is no text box");
        if (reached(target)) stage_.type(static_cast<TextBox&>(target), action.text);
    }

    void focus(const Action& action) {
        Control& target = control(action.control);
        if (reached(target)) stage_.focus(target);
    }

    /// `what` is the save that was taken back or made again, if there was one.
    void travel(const char* name, const std::optional<std::string>& what) {
        Json event;
        event["event"] = name;
        event["what"] = what ? json_text(*what) : Json();
        print(event);
        if (what) stage_.read_anew();
    }

    void show(const std::string& name) {
        Json state;
        if (Control* const found = form_.registry.find(name)) {
            state = stage_.state(*found);
        } else {
            state = variable_state(form_, name);
        }
        if (state.is_null()) throw ScriptError("nothing is named " + echoed(name));
        print(state);
    }

    Stage& stage_;
    frmKalco& form_;
    ScriptPlatform& platform_;
    std::ostream& out_;
    bool started_ = false;
};

Json ended_event(const char* reason) {
    Json event;
    event["event"] = "ended";
    event["reason"] = reason;
    return event;
}

void close_after_failure(frmKalco& form) {
    try {
        form.image.close();
    } catch (const std::exception&) {
        // The run has failed already; its first error is the one that is told.
    }
}

/// The next line without its end; false when there is none. A read error is no end of the script.
bool read_line(std::istream& script, std::string& line) {
    constexpr std::size_t longest = 1 << 20;
    line.clear();
    char character = 0;
    while (script.get(character) && character != '\n') {
        if (line.size() == longest) throw ScriptError("the line is too long");
        line += character;
    }
    if (script.bad()) throw ScriptError("the script can't be read on");
    return script.good() || !line.empty();
}

void play(std::istream& script, Runner& runner, int& line_number) {
    std::string line;
    while (!runner.ended()) {
        ++line_number;
        if (!read_line(script, line)) break;
        if (const auto action = parse_line(line)) runner.perform(*action);
    }
    runner.finish();
}

}  // namespace

int run_script(std::istream& script, Stage& stage, ScriptPlatform& platform, std::ostream& complaints) {
    Runner runner(stage, platform, platform.out());
    int line_number = 0;
    try {
        play(script, runner, line_number);
    } catch (const ScriptError& failure) {
        close_after_failure(stage.form());
        complaints << "line " << line_number << ": " << failure.what() << '\n';
        return exit_unrunnable;
    } catch (const std::exception& failure) {
        close_after_failure(stage.form());
        Json event = ended_event("error");
        event["number"] = error_number(failure);
        runner.print(event);
        return exit_failed;
    }
    switch (*stage.form().ended) {
        case Ending::closed: runner.print(ended_event("closed")); return exit_done;
        case Ending::cancelled: runner.print(ended_event("cancelled")); return exit_done;
        case Ending::denied: break;
    }
    runner.print(ended_event("denied"));
    return exit_failed;
}

}  // namespace kalco::script
