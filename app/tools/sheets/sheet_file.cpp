#include "app/tools/sheets/sheet_file.h"

#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <array>

#include "app/file_dialogs.h"
#include "app/tools/captions.h"
#include "app/tools/message.h"
#include "ui_sheet_file.h"

namespace kalco::app {
namespace {

/// In the order of the form's list.
constexpr std::array separators{';', ',', '\t'};

/// The sheets that the form has chosen; its first row stands for all where there are several.
std::vector<const Sheet*> chosen_sheets(const std::vector<const Sheet*>& sheets, int row) {
    if (sheets.size() == 1) return sheets;
    if (row == 0) return sheets;
    return {sheets.at(static_cast<std::size_t>(row - 1))};
}

QStringList filters_of(bool several) {
    const QString csv = QStringLiteral("CSV, un foglio (*.csv)");
    const QString fods = QStringLiteral("Foglio di calcolo FODS (*.fods)");
    const QString json = QStringLiteral("JSON (*.json)");
    return several ? QStringList{fods, json} : QStringList{csv, fods, json};
}

QString proposal(const QString& start, const std::vector<const Sheet*>& chosen) {
    if (chosen.size() > 1) return start + QStringLiteral(".fods");
    return QStringLiteral("%1 %2.csv").arg(start, caption_of(*chosen.front()).toLower());
}

}  // namespace

std::optional<SheetFile> choose_sheet_file(QWidget* parent, const QString& title,
                                           const std::vector<const Sheet*>& sheets, const QString& start) {
    QDialog dialog(parent);
    Ui::SheetFile form;
    form.setupUi(&dialog);
    dialog.setWindowTitle(title);
    if (sheets.size() > 1) form.comboSheet->addItem(QStringLiteral("Tutti i fogli"));
    for (const Sheet* const sheet : sheets) form.comboSheet->addItem(caption_of(*sheet));
    const auto choose_fields = [&] {
        const bool one = chosen_sheets(sheets, form.comboSheet->currentIndex()).size() == 1;
        form.comboSeparator->setEnabled(one);
        form.checkMark->setEnabled(one);
    };
    QObject::connect(form.comboSheet, &QComboBox::currentIndexChanged, &dialog, choose_fields);
    QObject::connect(form.buttonFile, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(form.buttonCancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    choose_fields();
    while (dialog.exec() == QDialog::Accepted) {
        SheetFile file;
        file.sheets = chosen_sheets(sheets, form.comboSheet->currentIndex());
        file.path = choose_new_file(parent, title, filters_of(file.sheets.size() > 1), proposal(start, file.sheets));
        if (file.path.isEmpty()) continue;
        file.format = ctl::format_of_path(file.path.toStdString());
        file.form = {separators.at(static_cast<std::size_t>(form.comboSeparator->currentIndex())),
                     form.checkMark->isChecked()};
        if (file.format != ctl::TableFormat::csv || file.sheets.size() == 1) return file;
        tell_failure(parent, QStringLiteral("Un file CSV tiene un foglio solo."),
                     QStringLiteral("Scegline uno, o dai al file il nome .fods o .json."));
    }
    return std::nullopt;
}

QString path_beside(const QString& image) {
    const QFileInfo file(image);
    const QString name = file.completeBaseName();
    return file.dir().filePath(name.isEmpty() ? QStringLiteral("immagine") : name);
}

}  // namespace kalco::app
