#pragma once

#include <QDialog>

#include "app/tools/desk.h"

namespace kalco::app {

/// Patches of the open image: a page that puts them on and takes them off, and one that makes them.
class PatchDialog : public QDialog {
    Q_OBJECT

public:
    explicit PatchDialog(Desk& desk, QWidget* parent = nullptr);
};

}  // namespace kalco::app
