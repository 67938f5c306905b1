#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kalco {

/// `& < > "` as references, so that the text can stand in an element and in a quoted attribute. Control characters, for
/// which XML has no form, become U+FFFD.
std::string escaped(std::string_view utf8);

/// Writes XML, or HTML in its XML form, element by element. Names are literals and written as they are, texts and
/// values are escaped.
class Markup {
public:
    /// `<name`, to be followed by attributes.
    Markup& open(std::string_view name);
    Markup& attribute(std::string_view name, std::string_view value);
    Markup& attribute(std::string_view name, std::int64_t value);
    Markup& text(std::string_view text);
    /// Markup that is known to be whole.
    Markup& raw(std::string_view markup);
    /// `</name>` of the element opened last.
    Markup& close();
    /// `/>` of the element opened last, which must have no content.
    Markup& end();

    /// An element with a text and no attributes.
    Markup& leaf(std::string_view name, std::string_view text) { return open(name).text(text).close(); }

    const std::string& result() const { return result_; }
    std::string take() { return std::move(result_); }

private:
    void finish_tag();

    std::string result_;
    std::vector<std::string_view> open_;
    bool in_tag_ = false;
};

}  // namespace kalco
