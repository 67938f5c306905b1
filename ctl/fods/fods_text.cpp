#include "ctl/fods/fods_text.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace kalco::ctl::fods {
namespace {

constexpr int most_depth = 32;
constexpr std::string_view blanks = " \t\r\n";

/// Puts one paragraph together.
class Paragraph {
public:
    explicit Paragraph(std::string& text) : text_(text) {}

    void add_children(const pugi::xml_node& node, int depth = 0) {
        if (depth > most_depth) throw std::length_error("text elements nested without end");
        for (const pugi::xml_node& child : node.children()) {
            if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) {
                add_collapsed(child.value());
            } else if (child.type() == pugi::node_element) {
                add_element(child, depth);
            }
        }
    }

private:
    void add_element(const pugi::xml_node& element, int depth) {
        const std::string_view name = element.name();
        if (name == "text:s") {
            const auto count = element.attribute("text:c").as_ullong(1);
            add(std::min<unsigned long long>(count, most_text_bytes), ' ');
        } else if (name == "text:tab") {
            add(1, '\t');
        } else if (name == "text:line-break") {
            add(1, '\n');
        } else if (name != "office:annotation" && name != "text:note") {
            add_children(element, depth + 1);
        }
    }

    void add_collapsed(std::string_view text) {
        for (const char character : text) {
            const bool blank = blanks.find(character) != std::string_view::npos;
            if (!blank) {
                add(1, character);
            } else if (!behind_blank_) {
                add(1, ' ');
            }
            behind_blank_ = blank;
        }
    }

    void add(std::size_t count, char character) {
        if (count > most_text_bytes - text_.size()) throw std::length_error("a text of more than 32767 bytes");
        text_.append(count, character);
        behind_blank_ = false;
    }

    std::string& text_;
    bool behind_blank_ = true;  ///< Also at the beginning, where blanks of the file count nothing.
};

}  // namespace

std::string shown_text(const pugi::xml_node& cell) {
    std::string text;
    bool first = true;
    for (const pugi::xml_node& paragraph : cell.children("text:p")) {
        if (!first) text += '\n';
        first = false;
        Paragraph(text).add_children(paragraph);
    }
    return text;
}

void write_text(Markup& markup, std::string_view text) {
    markup.open("text:p");
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = std::min(text.find_first_of(" \t\n", at), text.size());
        if (end > at) {
            markup.text(text.substr(at, end - at));
        } else if (text[at] != ' ') {
            ++end;
            markup.open(text[at] == '\t' ? "text:tab" : "text:line-break").end();
        } else {
            end = std::min(text.find_first_not_of(' ', at), text.size());
            const bool counts = at > 0 && end == at + 1 && end < text.size();
            if (counts) {
                markup.text(" ");
            } else {
                markup.open("text:s").attribute("text:c", static_cast<std::int64_t>(end - at)).end();
            }
        }
        at = end;
    }
    markup.close();
}

}  // namespace kalco::ctl::fods
