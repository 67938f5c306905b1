#include "ctl/script/script_language.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <nlohmann/json.hpp>
#include <utility>

#include "ctl/printable.h"

namespace kalco::script {
namespace {

constexpr std::array<std::pair<std::string_view, Verb>, 13> verbs{{
    {"start", Verb::start},
    {"choose", Verb::choose},
    {"answer", Verb::answer},
    {"tab", Verb::tab},
    {"pick", Verb::pick},
    {"doubleclick", Verb::double_click},
    {"click", Verb::click},
    {"type", Verb::type},
    {"focus", Verb::focus},
    {"undo", Verb::undo},
    {"redo", Verb::redo},
    {"show", Verb::show},
    {"close", Verb::close},
}};

constexpr std::string_view blanks = " \t\r";

/// Takes words off the front of a line.
class Words {
public:
    explicit Words(std::string_view line) : rest_(line) { skip_blanks(); }

    bool done() const { return rest_.empty(); }

    std::string next(const char* what) {
        if (done()) throw ScriptError(std::string("there is no ") + what);
        const std::size_t end = std::min(rest_.find_first_of(blanks), rest_.size());
        std::string word(rest_.substr(0, end));
        rest_.remove_prefix(end);
        skip_blanks();
        return word;
    }

    int next_number(const char* what) {
        const std::string word = next(what);
        int value = 0;
        const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), value);
        if (failure != std::errc() || end != word.data() + word.size()) {
            throw ScriptError(echoed(word) + " is no " + what);
        }
        return value;
    }

    /// The JSON string that the rest of the line is, as UTF-8.
    std::string json_string(const char* what) {
        const auto value = nlohmann::json::parse(rest_, nullptr, false);
        if (!value.is_string()) throw ScriptError(std::string("the ") + what + " is no JSON string");
        rest_ = {};
        return value.get<std::string>();
    }

    std::string_view rest() const { return rest_; }
    void skip_rest() { rest_ = {}; }

private:
    void skip_blanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size())); }

    std::string_view rest_;
};

Verb verb_of(const std::string& word) {
    const auto* const found =
        std::find_if(verbs.begin(), verbs.end(), [&](const auto& verb) { return verb.first == word; });
    if (found == verbs.end()) throw ScriptError("unknown action " + echoed(word));
    return found->second;
}

std::string_view without_trailing_blanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

void parse_operands(Action& action, Words& words) {
    switch (action.verb) {
        case Verb::start:
        case Verb::undo:
        case Verb::redo:
        case Verb::close: break;
        case Verb::choose:
            action.cancelled = without_trailing_blanks(words.rest()) == "cancel";
            if (action.cancelled) {
                words.skip_rest();
            } else {
                action.text = words.json_string("path");
                if (action.text.find('\0') != std::string::npos) throw ScriptError("the path holds a zero byte");
            }
            break;
        case Verb::answer:
            action.text = words.next("answer");
            if (action.text != "yes" && action.text != "no" && action.text != "cancel") {
                throw ScriptError("unknown answer " + echoed(action.text));
            }
            break;
        case Verb::tab: action.number = words.next_number("tab"); break;
        case Verb::pick:
        case Verb::double_click:
            action.control = words.next("control");
            action.number = words.next_number("row");
            break;
        case Verb::click:
        case Verb::focus: action.control = words.next("control"); break;
        case Verb::type:
            action.control = words.next("control");
            action.text = latin1_of_utf8(words.json_string("text"));
            break;
        case Verb::show:
            action.names.push_back(words.next("name"));
            while (!words.done()) action.names.push_back(words.next("name"));
            break;
    }
}

}  // namespace

std::optional<Action> parse_line(std::string_view line) {
    Words words(line);
    if (words.done() || words.rest().front() == '#') return std::nullopt;
    Action action;
    action.verb = verb_of(words.next("action"));
    parse_operands(action, words);
    if (!words.done()) throw ScriptError("nothing is expected at: " + echoed(words.rest()));
    return action;
}

std::string echoed(std::string_view text) {
    constexpr std::size_t most = 80;
    return ctl::printable(text, most);
}

std::string latin1_of_utf8(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        std::size_t length = 1;
        while (i + length < text.size() && (static_cast<unsigned char>(text[i + length]) & 0xC0) == 0x80) ++length;
        if (lead < 0x80 && length == 1) {
            result += text[i];
        } else if ((lead & 0xFE) == 0xC2 && length == 2) {
            result += static_cast<char>((lead << 6) | (static_cast<unsigned char>(text[i + 1]) & 0x3F));
        } else {
            result += '?';
        }
        i += length;
    }
    return result;
}

}  // namespace kalco::script
