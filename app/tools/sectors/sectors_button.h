#pragma once

#include <QPushButton>

#include "app/tools/desk.h"

namespace kalco::app {

/// In the status line: how many of the sectors with the editor's tables do not fit. Away without an image.
class SectorsButton : public QPushButton {
    Q_OBJECT

public:
    explicit SectorsButton(Desk& desk, QWidget* parent = nullptr);

private:
    void look();

    Desk& desk_;
};

/// "3 settori da riparare".
QString sectors_to_repair(std::int64_t count);

}  // namespace kalco::app
