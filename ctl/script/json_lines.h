#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "editor/window/frmKalco.h"

/// What the runner prints: one JSON object a line, keys in a fixed order, other characters than ASCII escaped.
namespace kalco::script {

using Json = nlohmann::ordered_json;

/// The line of an object, without its end.
std::string json_line(const Json& object);

/// A Latin-1 text as a JSON string.
Json json_text(std::string_view latin1);

/// The state of a control as the model holds it: "show", "enabled", what its kind has, and its hint.
Json control_state(const Control& control);

/// The state of a run-state variable; null when there is none of that name.
Json variable_state(const frmKalco& form, std::string_view name);

}  // namespace kalco::script
