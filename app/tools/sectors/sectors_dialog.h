#pragma once

#include <QDialog>
#include <memory>

#include "app/tools/desk.h"
#include "app/tools/sectors/bad_sectors_model.h"

namespace Ui {
class SectorsDialog;
}

namespace kalco::app {

/// Which sectors of the open image do not fit, of those with the editor's tables or of all, and their repair as one
/// save. Nothing is repaired without being asked.
class SectorsDialog : public QDialog {
    Q_OBJECT

public:
    explicit SectorsDialog(Desk& desk, QWidget* parent = nullptr);
    ~SectorsDialog() override;

private:
    void check_tables();
    void check_all();
    void repair();
    void show_result(const check::Summary& summary, std::vector<check::BadSector> bad, bool whole);

    std::unique_ptr<Ui::SectorsDialog> ui_;
    Desk& desk_;
    BadSectorsModel rows_;
};

}  // namespace kalco::app
