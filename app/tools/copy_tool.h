#pragma once

#include "app/tools/desk.h"

class QWidget;

namespace kalco::app {

/// Asks where a copy of the open image is to go, and makes it.
void make_safe_copy(Desk& desk, QWidget& window);

}  // namespace kalco::app
