#include "editor/window/controls.h"

#include <algorithm>
#include <utility>

#include "disc/codec/latin1.h"
#include "disc/runtime_error.h"

namespace kalco {
namespace {

void require_row(int row, int end, int error_number) {
    if (row < 0 || row >= end) throw RuntimeError(error_number);
}

}  // namespace

void throw_no_such_element() {
    throw RuntimeError(error::no_such_element);
}

Label::Label(Registry& registry, std::string name, Place place, std::string caption)
    : Control(registry, std::move(name), Kind::label, place),
      caption_(std::move(caption)) {}

void Label::set_caption(std::string_view caption) {
    caption_ = until_zero(caption);
    notify();
}

TextBox::TextBox(Registry& registry, std::string name, Place place, int max_length)
    : Control(registry, std::move(name), Kind::text_box, place),
      max_length_(max_length) {}

void TextBox::set_text(std::string_view text) {
    text_ = std::string(until_zero(text));
    notify();
    raise(change);
}

void TextBox::set_max_length(int length) {
    if (std::exchange(max_length_, length) != length) notify();
}

void TextBox::select(int start, int length) {
    selection_ = {start, length};
    selection_requested_ = true;
    notify();
}

TextBox::Selection TextBox::take_selection() {
    selection_requested_ = false;
    return selection_;
}

ComboBox::ComboBox(Registry& registry, std::string name, Place place)
    : Control(registry, std::move(name), Kind::combo_box, place) {}

void ComboBox::set_items(std::vector<std::string> items) {
    items_ = std::move(items);
    notify();
}

void ComboBox::set_text(std::string_view text) {
    text_ = std::string(until_zero(text));
    const auto found = std::find(items_.begin(), items_.end(), text_);
    row_ = found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
    notify();
}

void ComboBox::show_row(int row) {
    if (row < -1 || row >= static_cast<int>(items_.size())) throw RuntimeError(error::invalid_property);
    row_ = row;
    text_ = row < 0 ? std::string() : items_[static_cast<std::size_t>(row)];
    notify();
}

void ComboBox::select(int row) {
    const int before = row_;
    show_row(row);
    if (row_ != before && row_ >= 0) raise(click);
}

void ComboBox::pick(int row) {
    show_row(row);
    raise(click);
}

ListBox::ListBox(Registry& registry, std::string name, Place place)
    : Control(registry, std::move(name), Kind::list_box, place) {}

const std::string& ListBox::item(int row) const {
    static const std::string none;
    return row >= 0 && row < count() ? items_[static_cast<std::size_t>(row)] : none;
}

void ListBox::add(std::string_view text) {
    items_.emplace_back(until_zero(text));
    notify();
}

void ListBox::insert(std::string_view text, int row) {
    require_row(row, count() + 1, error::invalid_call);
    items_.emplace(items_.begin() + row, until_zero(text));
    if (row_ >= row) ++row_;
    notify();
}

void ListBox::remove(int row) {
    require_row(row, count(), error::invalid_call);
    items_.erase(items_.begin() + row);
    if (row_ == row) {
        row_ = -1;
    } else if (row_ > row) {
        --row_;
    }
    notify();
}

void ListBox::replace(int row, std::string_view text) {
    require_row(row, count(), error::invalid_call);
    items_[static_cast<std::size_t>(row)] = std::string(until_zero(text));
    notify();
}

void ListBox::clear() {
    items_.clear();
    row_ = -1;
    notify();
}

void ListBox::assign(std::vector<std::string> items) {
    for (std::string& text : items) text.resize(until_zero(text).size());
    items_ = std::move(items);
    row_ = -1;
    notify();
}

void ListBox::select(int row) {
    const int before = row_;
    select_silently(row);
    if (row_ != before && row_ >= 0) raise(click);
}

void ListBox::select_silently(int row) {
    if (row != -1) require_row(row, count(), error::invalid_property);
    row_ = row;
    notify();
}

void ListBox::pick(int row) {
    select_silently(row);
    raise(click);
}

CommandButton::CommandButton(Registry& registry, std::string name, Place place, std::string caption)
    : Control(registry, std::move(name), Kind::command_button, place),
      caption_(std::move(caption)) {}

OptionButton::OptionButton(Registry& registry, std::string name, Place place, std::string caption, bool value)
    : Control(registry, std::move(name), Kind::option_button, place),
      registry_(registry),
      caption_(std::move(caption)),
      value_(value) {}

void OptionButton::set_value(bool value) {
    value_ = value;
    notify();
    if (!value) return;
    for (Control* other : registry_.all()) {
        if (other == this || other->kind() != Kind::option_button || other->frame() != frame()) continue;
        auto& option = static_cast<OptionButton&>(*other);
        if (option.value()) option.set_value(false);
    }
    raise(click);
}

ImageBox::ImageBox(Registry& registry, std::string name, Place place)
    : Control(registry, std::move(name), Kind::image_box, place) {}

void ImageBox::set_picture(std::string_view name) {
    picture_ = std::string(name);
    notify();
}

StrengthBar::StrengthBar(Registry& registry, std::string name, Place place)
    : Control(registry, std::move(name), Kind::strength_bar, place) {}

void StrengthBar::set_value(int value) {
    value_ = std::clamp(value, 0, most);
    notify();
}

void StrengthBar::set_caption(std::string_view caption) {
    caption_ = std::string(caption);
    notify();
}

NumberCell::NumberCell(Registry& registry, std::string name, Place place)
    : Control(registry, std::move(name), Kind::number_cell, place) {}

void NumberCell::set_in_use(bool in_use) {
    if (std::exchange(in_use_, in_use) != in_use) notify();
}

PitchMarker::PitchMarker(Registry& registry, std::string name, Place place)
    : Control(registry, std::move(name), Kind::pitch_marker, place) {}

void PitchMarker::set_caption(std::string_view caption) {
    caption_ = std::string(caption);
    notify();
}

void PitchMarker::set_selected(bool selected) {
    if (std::exchange(selected_, selected) != selected) notify();
}

void PitchMarker::move(int left, int top) {
    left_ = left;
    top_ = top;
    notify();
}

TabControl::TabControl(Registry& registry, std::string name, std::vector<std::string> captions)
    : Control(registry, std::move(name), Kind::tab_control, Place::anywhere()),
      captions_(std::move(captions)) {}

void TabControl::select(int tab) {
    if (tab == tab_) return;
    tab_ = tab;
    notify();
    raise(change);
}

}  // namespace kalco
