#include "editor/window/control.h"

#include <stdexcept>
#include <utility>

namespace kalco {

void Registry::add(Control& control) {
    all_.push_back(&control);
    if (!by_name_.emplace(control.name(), &control).second) {
        throw std::logic_error("two controls are named " + control.name());
    }
}

Control* Registry::find(std::string_view name) const {
    const auto found = by_name_.find(std::string(name));
    return found == by_name_.end() ? nullptr : found->second;
}

Place::Place(Frame& around) : tab(around.tab()), frame(&around), on_screen(around.on_screen()) {}

Place Place::off_screen_in(Frame& around) {
    Place place(around);
    place.on_screen = false;
    return place;
}

Control::Control(Registry& registry, std::string name, Kind kind, Place place)
    : name_(std::move(name)),
      kind_(kind),
      place_(place) {
    registry.add(*this);
}

bool Control::takes_input() const {
    return enabled_ && (place_.frame == nullptr || place_.frame->takes_input());
}

bool Control::takes_focus() const {
    switch (kind_) {
        case Kind::text_box:
        case Kind::combo_box:
        case Kind::list_box:
        case Kind::command_button:
        case Kind::option_button:
        case Kind::tab_control: return true;
        default: return false;
    }
}

void Control::set_enabled(bool enabled) {
    if (std::exchange(enabled_, enabled) != enabled) notify();
}

void Control::set_visible(bool visible) {
    if (std::exchange(visible_, visible) != visible) notify();
}

void Control::set_hint(std::string hint) {
    hint_ = std::move(hint);
    notify();
}

Frame::Frame(Registry& registry, std::string name, Place place, std::string caption)
    : Control(registry, std::move(name), Kind::frame, place),
      caption_(std::move(caption)) {}

}  // namespace kalco
