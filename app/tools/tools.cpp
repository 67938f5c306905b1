#include "app/tools/tools.h"

#include <QDialog>

#include "app/tools/compare/compare_dialog.h"
#include "app/tools/copy_tool.h"
#include "app/tools/patch/patch_dialog.h"
#include "app/tools/report_tool.h"
#include "app/tools/search/search_window.h"
#include "app/tools/sectors/sectors_dialog.h"
#include "app/tools/sheets/export_tool.h"
#include "app/tools/sheets/import_dialog.h"

namespace kalco::app {
namespace {

void bring_to_front(QWidget& dialog) {
    dialog.setWindowState(dialog.windowState() & ~Qt::WindowMinimized);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

}  // namespace

Tools::~Tools() {
    delete search_;
}

template <typename Dialog>
void Tools::open() {
    auto* dialog = window_.findChild<Dialog*>(QString(), Qt::FindDirectChildrenOnly);
    if (dialog == nullptr) {
        dialog = new Dialog(desk_, &window_);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    bring_to_front(*dialog);
}

void Tools::copy_image() {
    make_safe_copy(desk_, window_);
}

void Tools::search() {
    if (search_ == nullptr) {
        search_ = new SearchWindow(desk_);
        search_->setAttribute(Qt::WA_DeleteOnClose);
    }
    bring_to_front(*search_);
    search_->take_name();
}

void Tools::sectors() {
    open<SectorsDialog>();
}

void Tools::report() {
    write_report(desk_, window_);
}

void Tools::export_sheet() {
    export_sheets(desk_, window_);
}

void Tools::import_sheet() {
    import_sheets(desk_, window_);
}

void Tools::compare() {
    compare_images(desk_, window_);
}

void Tools::patch() {
    open<PatchDialog>();
}

}  // namespace kalco::app
