#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/window/control.h"

/// The kinds of controls. Texts are Latin-1, one byte a character, and end at their first zero byte. Rows are 0-based,
/// -1 meaning none.
namespace kalco {

class Label : public Control {
public:
    Label(Registry& registry, std::string name, Place place, std::string caption = {});

    const std::string& caption() const { return caption_; }
    void set_caption(std::string_view caption);

private:
    std::string caption_;
};

class TextBox : public Control {
public:
    using KeyFilter = std::function<bool(char)>;

    TextBox(Registry& registry, std::string name, Place place, int max_length = 0);

    const std::string& text() const { return text_; }
    /// Never cuts at the maximum length; raises the change event every time.
    void set_text(std::string_view text);

    /// Limits what the user types, 0 for no limit.
    int max_length() const { return max_length_; }
    void set_max_length(int length);

    /// The stretch that is shown as selected after a handler asked for it; a view takes it once.
    struct Selection {
        int start = 0;
        int length = 0;
    };
    void select(int start, int length);
    bool has_selection_request() const { return selection_requested_; }
    Selection take_selection();

    /// False for a character that typing drops; unset, all printable characters pass.
    KeyFilter key_filter;
    Event change;

private:
    std::string text_;
    int max_length_;
    Selection selection_;
    bool selection_requested_ = false;
};

/// A pick list: the user chooses a row and types nothing. Its text may be one that is not among the rows.
class ComboBox : public Control {
public:
    ComboBox(Registry& registry, std::string name, Place place);

    const std::vector<std::string>& items() const { return items_; }
    void set_items(std::vector<std::string> items);

    const std::string& text() const { return text_; }
    /// Shows the text and takes the row of the first equal item, or -1. Raises nothing.
    void set_text(std::string_view text);

    int row() const { return row_; }
    /// Raises the click when the row changes, but not to -1. Error 380 when there is no such row.
    void select(int row);
    /// The user's choice: raises the click also when the row was selected already.
    void pick(int row);

    Event click;

private:
    void show_row(int row);

    std::vector<std::string> items_;
    std::string text_;
    int row_ = -1;
};

class ListBox : public Control {
public:
    ListBox(Registry& registry, std::string name, Place place);

    const std::vector<std::string>& items() const { return items_; }
    int count() const { return static_cast<int>(items_.size()); }
    /// The text of a row; empty for a row that does not exist.
    const std::string& item(int row) const;
    /// The text of the selected row, empty when there is none.
    const std::string& text() const { return item(row_); }

    void add(std::string_view text);
    /// Error 5 when there is no such place. The selection stays with its row.
    void insert(std::string_view text, int row);
    /// Error 5 when there is no such row. Removing the selected row leaves none selected.
    void remove(int row);
    /// Another text at the same place; nothing else changes and nothing is raised. Error 5 when there is no such row.
    void replace(int row, std::string_view text);
    void clear();
    /// All rows at once, as clear and add would leave them.
    void assign(std::vector<std::string> items);

    int row() const { return row_; }
    /// Raises the click when the row changes, but not to -1. Error 380 when there is no such row.
    void select(int row);
    /// The same without the click.
    void select_silently(int row);
    /// The user's choice: raises the click also when the row was selected already.
    void pick(int row);

    Event click;
    Event double_click;

private:
    std::vector<std::string> items_;
    int row_ = -1;
};

class CommandButton : public Control {
public:
    CommandButton(Registry& registry, std::string name, Place place, std::string caption = {});
    const std::string& caption() const { return caption_; }

    Event click;

private:
    std::string caption_;
};

/// One of a group that excludes each other: all option buttons of the same frame.
class OptionButton : public Control {
public:
    OptionButton(Registry& registry, std::string name, Place place, std::string caption = {}, bool value = false);

    const std::string& caption() const { return caption_; }
    bool value() const { return value_; }
    /// Selecting deselects the others of the group and always raises the click; deselecting raises nothing.
    void set_value(bool value);

    Event click;

private:
    const Registry& registry_;
    std::string caption_;
    bool value_;
};

/// Shows a bitmap by its name; empty for none.
class ImageBox : public Control {
public:
    ImageBox(Registry& registry, std::string name, Place place);
    const std::string& picture() const { return picture_; }
    void set_picture(std::string_view name);

private:
    std::string picture_;
};

class StrengthBar : public Control {
public:
    static constexpr int most = 10;

    StrengthBar(Registry& registry, std::string name, Place place);

    int value() const { return value_; }
    /// Held within 0..10.
    void set_value(int value);
    const std::string& caption() const { return caption_; }
    void set_caption(std::string_view caption);

private:
    int value_ = 0;
    std::string caption_;
};

/// A cell of the board of shirt numbers.
class NumberCell : public Control {
public:
    NumberCell(Registry& registry, std::string name, Place place);
    bool in_use() const { return in_use_; }
    void set_in_use(bool in_use);

private:
    bool in_use_ = false;
};

/// An outfield player on the pitch; left and top are form units.
class PitchMarker : public Control {
public:
    PitchMarker(Registry& registry, std::string name, Place place);

    const std::string& caption() const { return caption_; }
    void set_caption(std::string_view caption);
    /// Its two colours are exchanged.
    bool selected() const { return selected_; }
    void set_selected(bool selected);
    int left() const { return left_; }
    int top() const { return top_; }
    void move(int left, int top);

    /// The mouse press that comes before the click.
    Event press;
    Event click;

private:
    std::string caption_;
    bool selected_ = false;
    int left_ = 0;
    int top_ = 0;
};

class TabControl : public Control {
public:
    TabControl(Registry& registry, std::string name, std::vector<std::string> captions);

    /// In a caption a single "&" marks the access key and a double one stands for itself.
    const std::vector<std::string>& captions() const { return captions_; }
    int tab() const { return tab_; }
    /// Raises the change; selecting the tab that is shown does nothing.
    void select(int tab);

    Event change;

private:
    std::vector<std::string> captions_;
    int tab_ = 0;
};

/// A control array: members "name(first)".."name(last)". Asking for another index is error 340.
template <typename T>
class ControlArray {
public:
    ControlArray(Registry& registry, const std::string& name, int first, int last, Place place)
        : ControlArray(registry, name, first, last, place, [](int) { return std::string(); }) {}

    template <typename Caption>
    ControlArray(Registry& registry, const std::string& name, int first, int last, Place place, Caption caption)
        : first_(first) {
        for (int i = first; i <= last; ++i) {
            const std::string member = name + '(' + std::to_string(i) + ')';
            if constexpr (std::is_constructible_v<T, Registry&, std::string, Place, std::string>) {
                members_.emplace_back(registry, member, place, caption(i));
            } else {
                members_.emplace_back(registry, member, place);
            }
        }
    }

    T& operator()(int index) {
        require_index(index);
        return members_[static_cast<std::size_t>(index - first_)];
    }

    const T& operator()(int index) const {
        require_index(index);
        return members_[static_cast<std::size_t>(index - first_)];
    }

    int first() const { return first_; }
    int last() const { return first_ + static_cast<int>(members_.size()) - 1; }
    bool has(int index) const { return index >= first_ && index <= last(); }

private:
    void require_index(int index) const;

    int first_ = 0;
    std::deque<T> members_;
};

[[noreturn]] void throw_no_such_element();

template <typename T>
void ControlArray<T>::require_index(int index) const {
    if (!has(index)) throw_no_such_element();
}

}  // namespace kalco
