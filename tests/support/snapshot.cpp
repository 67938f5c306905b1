#include "support/snapshot.h"

namespace kalco::test {

Snapshot::Snapshot(const frmKalco& form) {
    for (const Control* control : form.registry.all()) {
        Json state = script::control_state(*control);
        state["enabled"] = control->enabled();
        state["visible"] = control->visible();
        states_[control->name()] = state;
    }
}

void Snapshot::set_enabled(std::initializer_list<const char*> names, bool enabled) {
    for (const char* name : names) states_.at(name)["enabled"] = enabled;
}

void Snapshot::set_text(const std::string& name, const std::string& text) {
    Json& state = states_.at(name);
    state["text"] = text;
    if (state.contains("row")) state["row"] = -1;
}

void Snapshot::set_items(const std::string& name, const std::vector<std::string>& items, int row) {
    Json& state = states_.at(name);
    state["items"] = items;
    state["row"] = row;
}

::testing::AssertionResult Snapshot::is(const Snapshot& expected) const {
    std::string text;
    for (const auto& [name, state] : states_) {
        const Json& wanted = expected.states_.at(name);
        if (state != wanted) text += "\n  is " + state.dump() + "\n  not " + wanted.dump();
    }
    return text.empty() ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << text;
}

void disturb(frmKalco& form) {
    for (Control* control : form.registry.all()) {
        switch (control->kind()) {
            case Kind::text_box: static_cast<TextBox*>(control)->set_text("text"); break;
            case Kind::combo_box: static_cast<ComboBox*>(control)->set_text("combo"); break;
            case Kind::label: static_cast<Label*>(control)->set_caption("label"); break;
            case Kind::list_box: {
                auto& list = static_cast<ListBox&>(*control);
                list.assign({"first", "second", "third"});
                list.select_silently(1);
                break;
            }
            case Kind::image_box: static_cast<ImageBox*>(control)->set_picture("A1"); break;
            case Kind::strength_bar: {
                auto& bar = static_cast<StrengthBar&>(*control);
                bar.set_value(5);
                bar.set_caption("5");
                break;
            }
            case Kind::number_cell: static_cast<NumberCell*>(control)->set_in_use(true); break;
            case Kind::pitch_marker: {
                auto& marker = static_cast<PitchMarker&>(*control);
                marker.set_caption("marker");
                marker.set_selected(true);
                marker.move(1234, 567);
                break;
            }
            default: break;
        }
        if (control->kind() == Kind::text_box) static_cast<TextBox*>(control)->set_max_length(7);
        control->set_enabled(true);
    }
}

}  // namespace kalco::test
