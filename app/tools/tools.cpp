#include "app/tools/tools.h"

#include <QDialog>

#include "app/tools/copy_tool.h"
#include "app/tools/report_tool.h"
#include "app/tools/sectors/sectors_dialog.h"

namespace kalco::app {

template <typename Dialog>
void Tools::open() {
    auto* dialog = window_.findChild<Dialog*>(QString(), Qt::FindDirectChildrenOnly);
    if (dialog == nullptr) {
        dialog = new Dialog(desk_, &window_);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void Tools::copy_image() {
    make_safe_copy(desk_, window_);
}

void Tools::sectors() {
    open<SectorsDialog>();
}

void Tools::report() {
    write_report(desk_, window_);
}

}  // namespace kalco::app
