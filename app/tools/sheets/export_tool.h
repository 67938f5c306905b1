#pragma once

#include "app/tools/desk.h"

class QWidget;

namespace kalco::app {

/// Asks which sheets of the open image are to go where, and writes them.
void export_sheets(Desk& desk, QWidget& window);

}  // namespace kalco::app
