#include "ctl/script/json_lines.h"

#include "disc/codec/latin1.h"

namespace kalco::script {
namespace {

std::string dumped(const Json& value) {
    return value.dump(-1, ' ', true, Json::error_handler_t::replace);
}

std::string dumped_nested(const Json& value) {
    if (!value.is_array()) return dumped(value);
    std::string text = "[";
    for (const Json& element : value) {
        if (text.size() > 1) text += ", ";
        text += dumped(element);
    }
    return text + ']';
}

Json json_items(const std::vector<std::string>& items) {
    Json array = Json::array();
    for (const std::string& item : items) array.push_back(json_text(item));
    return array;
}

void add_kind_state(Json& state, const Control& control) {
    switch (control.kind()) {
        case Kind::label: state["caption"] = json_text(static_cast<const Label&>(control).caption()); break;
        case Kind::text_box: {
            const auto& box = static_cast<const TextBox&>(control);
            state["text"] = json_text(box.text());
            state["maxLength"] = box.max_length();
            break;
        }
        case Kind::combo_box: {
            const auto& combo = static_cast<const ComboBox&>(control);
            state["text"] = json_text(combo.text());
            state["row"] = combo.row();
            state["items"] = json_items(combo.items());
            break;
        }
        case Kind::list_box: {
            const auto& list = static_cast<const ListBox&>(control);
            state["row"] = list.row();
            state["items"] = json_items(list.items());
            break;
        }
        case Kind::command_button:
            state["caption"] = json_text(static_cast<const CommandButton&>(control).caption());
            break;
        case Kind::option_button: state["value"] = static_cast<const OptionButton&>(control).value(); break;
        case Kind::frame: break;
        case Kind::image_box: state["picture"] = json_text(static_cast<const ImageBox&>(control).picture()); break;
        case Kind::strength_bar: {
            const auto& bar = static_cast<const StrengthBar&>(control);
            state["value"] = bar.value();
            state["caption"] = json_text(bar.caption());
            break;
        }
        case Kind::number_cell: state["inUse"] = static_cast<const NumberCell&>(control).in_use(); break;
        case Kind::pitch_marker: {
            const auto& marker = static_cast<const PitchMarker&>(control);
            state["caption"] = json_text(marker.caption());
            state["selected"] = marker.selected();
            state["left"] = marker.left();
            state["top"] = marker.top();
            break;
        }
        case Kind::tab_control: state["tab"] = static_cast<const TabControl&>(control).tab(); break;
    }
}

/// The value of a member of FormationX or FormationY; null for another name or index.
Json formation_value(const frmKalco& form, std::string_view name) {
    for (int marker = first_marker; marker <= last_marker; ++marker) {
        const std::string index = '(' + std::to_string(marker) + ')';
        const auto k = static_cast<std::size_t>(marker);
        if (name == "FormationX" + index) return form.FormationX[k];
        if (name == "FormationY" + index) return form.FormationY[k];
    }
    return nullptr;
}

}  // namespace

std::string json_line(const Json& object) {
    std::string line = "{";
    for (const auto& [key, value] : object.items()) {
        if (line.size() > 1) line += ", ";
        line += dumped(key) + ": " + dumped_nested(value);
    }
    return line + '}';
}

Json json_text(std::string_view latin1) {
    return utf8_of_latin1(latin1);
}

Json control_state(const Control& control) {
    Json state;
    state["show"] = control.name();
    state["enabled"] = control.takes_input();
    add_kind_state(state, control);
    if (!control.hint().empty()) state["hint"] = json_text(control.hint());
    return state;
}

Json variable_state(const frmKalco& form, std::string_view name) {
    Json value;
    if (name == "ImagePath") {
        value = form.ImagePath;
    } else if (name == "ImportPending") {
        value = form.ImportPending;
    } else if (name == "ImportPendingML") {
        value = form.ImportPendingML;
    } else if (name == "SelectedMarker") {
        value = form.SelectedMarker;
    } else if (name == "PackedNumberText") {
        value = json_text(form.PackedNumberText);
    } else {
        value = formation_value(form, name);
    }
    if (value.is_null()) return value;
    Json state;
    state["show"] = std::string(name);
    state["value"] = value;
    return state;
}

}  // namespace kalco::script
