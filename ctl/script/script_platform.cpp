#include "ctl/script/script_platform.h"

#include <ostream>

#include "ctl/script/json_lines.h"
#include "ctl/script/script_language.h"

namespace kalco::script {
namespace {

const char* name_of(Icon icon) {
    switch (icon) {
        case Icon::information: return "information";
        case Icon::warning: return "warning";
        case Icon::stop: break;
    }
    return "stop";
}

const char* name_of(Answer answer) {
    switch (answer) {
        case Answer::ok: return "ok";
        case Answer::yes: return "yes";
        case Answer::no: return "no";
        case Answer::cancel: break;
    }
    return "cancel";
}

}  // namespace

Answer ScriptPlatform::message(const std::string& text, Icon icon, Buttons buttons) {
    Answer answer = Answer::ok;
    if (buttons == Buttons::yes_no_cancel) {
        if (answers_.empty()) throw ScriptError("no answer is queued for the question box");
        answer = answers_.front();
        answers_.pop_front();
    }
    Json event;
    event["event"] = "message";
    event["icon"] = name_of(icon);
    event["buttons"] = buttons == Buttons::ok ? "ok" : "yes-no-cancel";
    event["text"] = json_text(text);
    event["answer"] = name_of(answer);
    out_ << json_line(event) << '\n';
    return answer;
}

std::string ScriptPlatform::open_dialog(const std::string& filter, const std::string&) {
    if (choices_.empty()) throw ScriptError("no path is queued for the file dialog");
    std::string path = std::move(choices_.front());
    choices_.pop_front();
    Json event;
    event["event"] = "dialog";
    event["filter"] = json_text(filter);
    event["filterIndex"] = 1;
    event["chosen"] = path.empty() ? Json() : Json(path);
    out_ << json_line(event) << '\n';
    return path;
}

}  // namespace kalco::script
