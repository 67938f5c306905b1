#pragma once

#include <QDialog>
#include <memory>
#include <optional>

#include "app/tools/desk.h"
#include "app/tools/sheets/mistakes_model.h"
#include "work/table.h"

namespace Ui {
class ImportDialog;
}

namespace kalco::app {

/// The tables of a file, as someone chose it.
struct ReadTables {
    QString path;
    Tables tables;
    std::optional<TableMistake> mistake;  ///< Why the file is none of tables.
};

/// Everything that an import would change in the open image, row by row, or everything that is wrong with the file;
/// then the chosen rows as one save. What it shows follows the image.
class ImportDialog : public QDialog {
    Q_OBJECT

public:
    ImportDialog(Desk& desk, ReadTables read, QWidget* parent = nullptr);
    ~ImportDialog() override;

private:
    void offer_sheets();
    /// "" for all.
    std::string_view chosen_sheet() const;
    void plan();
    void show_mistakes(std::vector<TableMistake> mistakes);
    void apply();

    std::unique_ptr<Ui::ImportDialog> ui_;
    Desk& desk_;
    ReadTables read_;
    MistakesModel mistakes_;
    bool applying_ = false;
};

/// Asks for a file and opens the dialog on it over the window; one that is open goes away.
void import_sheets(Desk& desk, QWidget& window);

}  // namespace kalco::app
