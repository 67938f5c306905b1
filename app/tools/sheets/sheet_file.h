#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "ctl/table_formats.h"
#include "work/sheets/field.h"

class QWidget;

namespace kalco::app {

/// Where sheets are to be written, and as what.
struct SheetFile {
    QString path;
    std::vector<const Sheet*> sheets;
    ctl::TableFormat format = ctl::TableFormat::csv;
    CsvForm form;
};

/// Asks which of some sheets to write, all or one, and then into what file: the format follows its ending. None when
/// it was cancelled. `start` is the proposed path without its ending.
std::optional<SheetFile> choose_sheet_file(QWidget* parent, const QString& title,
                                           const std::vector<const Sheet*>& sheets, const QString& start);

/// The proposed path for files about an image: the image's without its ending.
QString path_beside(const QString& image);

}  // namespace kalco::app
