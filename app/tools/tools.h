#pragma once

#include "app/tools/desk.h"

class QWidget;

namespace kalco::app {

/// Opens the tools over the window. Those that are open already come to the front.
class Tools {
public:
    /// Both must outlive this.
    Tools(Desk& desk, QWidget& window) : desk_(desk), window_(window) {}

    void copy_image();
    void sectors();
    void report();

private:
    template <typename Dialog>
    void open();

    Desk& desk_;
    QWidget& window_;
};

}  // namespace kalco::app
