#pragma once

#include <QString>
#include <QStringList>

class QFileDialog;
class QWidget;

namespace kalco::app {

/// Qt's own dialog in Italian, as the system's can't be relied on to speak it, to open an existing file.
void prepare_file_dialog(QFileDialog& dialog, const QString& title);

/// The path that the user chose, empty when it was cancelled. `start` is a directory, or a file to begin with; filters
/// are as in QFileDialog: "Fogli (*.csv *.fods)".
QString choose_existing_file(QWidget* parent, const QString& title, const QStringList& filters, const QString& start);
/// The same for a file to write. Asks before an existing one; without an ending the name gets that of the filter.
QString choose_new_file(QWidget* parent, const QString& title, const QStringList& filters, const QString& start);

}  // namespace kalco::app
