#pragma once

#include <vector>

#include "editor/window/frmKalco.h"

class QLabel;
class QWidget;

namespace kalco::app {

/// The marks beside the save buttons of the formations and numbers: what the tab shows is not what the image holds.
class UnsavedMarks {
public:
    UnsavedMarks(frmKalco& form, const QWidget& window);

    void refresh();

private:
    struct Mark {
        QLabel* label;
        bool (*unsaved)(frmKalco& form);
    };

    frmKalco& form_;
    std::vector<Mark> marks_;
};

}  // namespace kalco::app
