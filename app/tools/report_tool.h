#pragma once

#include "app/tools/desk.h"

class QWidget;

namespace kalco::app {

/// Asks where the page about the disc is to go, writes it and opens it in the browser.
void write_report(Desk& desk, QWidget& window);

}  // namespace kalco::app
