#pragma once

#include <QPointer>

#include "app/tools/desk.h"

class QWidget;

namespace kalco::app {

class SearchWindow;

/// Opens the tools over the window. Those that are open already come to the front.
class Tools {
public:
    /// Both must outlive this.
    Tools(Desk& desk, QWidget& window) : desk_(desk), window_(window) {}
    ~Tools();
    Tools(const Tools&) = delete;
    Tools& operator=(const Tools&) = delete;

    void copy_image();
    void search();
    void sectors();
    void report();
    void export_sheet();
    void import_sheet();
    void compare();
    void patch();

private:
    template <typename Dialog>
    void open();

    Desk& desk_;
    QWidget& window_;
    /// A window beside the editor's, not above it.
    QPointer<SearchWindow> search_;
};

}  // namespace kalco::app
