#include "work/markup.h"

namespace kalco {
namespace {

/// What stands for a character that can't stand for itself; "" for the others.
std::string_view reference_of(char character) {
    switch (character) {
        case '&': return "&amp;";
        case '<': return "&lt;";
        case '>': return "&gt;";
        case '"': return "&quot;";
        default: {
            const auto code = static_cast<unsigned char>(character);
            const bool control = code < 0x20 && character != '\n' && character != '\t';
            return control ? "\uFFFD" : "";
        }
    }
}

void add_escaped(std::string& result, std::string_view text) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view reference = reference_of(text[i]);
        if (reference.empty()) continue;
        result += text.substr(start, i - start);
        result += reference;
        start = i + 1;
    }
    result += text.substr(start);
}

}  // namespace

std::string escaped(std::string_view utf8) {
    std::string result;
    result.reserve(utf8.size());
    add_escaped(result, utf8);
    return result;
}

void Markup::finish_tag() {
    if (in_tag_) result_ += '>';
    in_tag_ = false;
}

Markup& Markup::open(std::string_view name) {
    finish_tag();
    result_ += '<';
    result_ += name;
    open_.push_back(name);
    in_tag_ = true;
    return *this;
}

Markup& Markup::attribute(std::string_view name, std::string_view value) {
    result_ += ' ';
    result_ += name;
    result_ += "=\"";
    add_escaped(result_, value);
    result_ += '"';
    return *this;
}

Markup& Markup::attribute(std::string_view name, std::int64_t value) {
    return attribute(name, std::string_view(std::to_string(value)));
}

Markup& Markup::text(std::string_view text) {
    finish_tag();
    add_escaped(result_, text);
    return *this;
}

Markup& Markup::raw(std::string_view markup) {
    finish_tag();
    result_ += markup;
    return *this;
}

Markup& Markup::close() {
    finish_tag();
    result_ += "</";
    result_ += open_.back();
    result_ += '>';
    open_.pop_back();
    return *this;
}

Markup& Markup::end() {
    result_ += "/>";
    open_.pop_back();
    in_tag_ = false;
    return *this;
}

}  // namespace kalco
