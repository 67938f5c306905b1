#pragma once

#include <QString>

#include "app/binder/binder.h"

namespace kalco::app {

/// What the user was doing, told by the control that has the model's focus: "Salva", "Squadra: Italy".
QString last_doing(const Binder& binder);

}  // namespace kalco::app
