#pragma once

#include <QWidget>

#include "ctl/script/json_lines.h"

namespace kalco::test {

/// The state of a control as its widget shows it, in the form of script::control_state.
script::Json widget_state(const Control& control, const QWidget& widget);

}  // namespace kalco::test
