#include "app/tools/sheets/import_dialog.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "app/file_dialogs.h"
#include "app/tools/captions.h"
#include "app/tools/changes/change_words.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/job.h"
#include "app/tools/message.h"
#include "app/tools/words.h"
#include "ctl/table_formats.h"
#include "ui_import_dialog.h"
#include "work/import_plan.h"
#include "work/write_changes.h"

namespace kalco::app {
namespace {

/// The sheet that knows most of a table's columns, the players when none is better.
std::size_t likely_sheet(const Table& table) {
    const auto known = [&](const Sheet& sheet) {
        return std::count_if(table.columns.begin(), table.columns.end(),
                             [&](const TableColumn& each) { return sheet.column_named(each.name) != nullptr; });
    };
    const auto all = sheets();
    const auto best =
        std::max_element(all.begin(), all.end(), [&](const Sheet& a, const Sheet& b) { return known(a) < known(b); });
    return static_cast<std::size_t>(best - all.begin());
}

bool is_old_revision(const TableMistake& mistake) {
    return mistake.column == "rev";
}

QString name_in_list(const QString& path) {
    return QFileInfo(path).fileName();
}

}  // namespace

ImportDialog::ImportDialog(Desk& desk, ReadTables read, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::ImportDialog>()),
      desk_(desk),
      read_(std::move(read)) {
    ui_->setupUi(this);
    setWindowTitle(QStringLiteral("Importa %1").arg(name_in_list(read_.path)));
    ui_->viewChanges->offer_boxes(true);
    ui_->tableMistakes->setModel(&mistakes_);
    ui_->tableMistakes->verticalHeader()->hide();
    ui_->tableMistakes->horizontalHeader()->setStretchLastSection(true);
    ui_->checkForce->hide();
    offer_sheets();
    connect(ui_->comboSheet, &QComboBox::currentIndexChanged, this, &ImportDialog::plan);
    connect(ui_->checkForce, &QCheckBox::toggled, this, &ImportDialog::plan);
    connect(ui_->buttonApply, &QPushButton::clicked, this, &ImportDialog::apply);
    connect(ui_->buttonClose, &QPushButton::clicked, this, &ImportDialog::reject);
    connect(&ui_->viewChanges->model(), &ChangesModel::chosen_changed, this,
            [this] { ui_->buttonApply->setEnabled(ui_->viewChanges->model().chosen_count() > 0); });
    connect(&desk_, &Desk::image_changed, this, &ImportDialog::plan);
    plan();
}

ImportDialog::~ImportDialog() = default;

void ImportDialog::offer_sheets() {
    const Tables& tables = read_.tables;
    const auto add = [this](const Sheet& sheet) {
        const QString name = QString::fromUtf8(sheet.name.data(), static_cast<qsizetype>(sheet.name.size()));
        ui_->comboSheet->addItem(caption_of(sheet), name);
    };
    if (tables.size() == 1 && tables.front().sheet.empty()) {
        for (const Sheet& sheet : sheets()) add(sheet);
        ui_->comboSheet->setCurrentIndex(static_cast<int>(likely_sheet(tables.front())));
        return;
    }
    ui_->comboSheet->addItem(QStringLiteral("Tutti quelli del file"), QString());
    for (const Table& table : tables) {
        if (const Sheet* const sheet = sheet_named(table.sheet)) add(*sheet);
    }
    ui_->comboSheet->setEnabled(tables.size() > 1);
}

std::string_view ImportDialog::chosen_sheet() const {
    const Sheet* const sheet = sheet_named(ui_->comboSheet->currentData().toString().toStdString());
    return sheet == nullptr ? std::string_view() : sheet->name;
}

void ImportDialog::plan() {
    if (applying_) return;
    const Image* const image = desk_.image();
    if (image == nullptr) return reject();
    if (read_.mistake) return show_mistakes({*read_.mistake});
    try {
        const DiscBytes disc = read_sheets(*image);
        ImportPlan plan = plan_import(disc, read_.tables, {chosen_sheet(), ui_->checkForce->isChecked()});
        const bool old = std::any_of(plan.mistakes.begin(), plan.mistakes.end(), is_old_revision);
        ui_->checkForce->setVisible(old || ui_->checkForce->isChecked());
        ui_->viewChanges->show_changes(std::move(plan.changes), disc);
        if (!plan.mistakes.empty()) return show_mistakes(std::move(plan.mistakes));
        const int count = static_cast<int>(ui_->viewChanges->model().changes().size());
        ui_->labelResult->setText(
            count == 0 ? QStringLiteral("Niente da importare: l'immagine ha già questi valori.")
                       : QStringLiteral("Da importare: %1. Togli il segno a quelli che devono restare com'erano.")
                             .arg(count_of_fields(count)));
        ui_->pages->setCurrentWidget(ui_->pageChanges);
    } catch (const std::exception& failure) {
        show_mistakes({});
        ui_->labelResult->setText(QStringLiteral("L'immagine non si legge: %1.").arg(words_of(failure)));
    }
}

void ImportDialog::show_mistakes(std::vector<TableMistake> mistakes) {
    const auto count = mistakes.size();
    ui_->buttonApply->setEnabled(false);
    ui_->labelResult->setText(count == 1
                                  ? QStringLiteral("Un errore: finché c'è, niente si può importare.")
                                  : QStringLiteral("%1 errori: finché ci sono, niente si può importare.").arg(count));
    mistakes_.show_mistakes(std::move(mistakes), sheet_named(chosen_sheet()));
    ui_->tableMistakes->setColumnWidth(0, ui_->tableMistakes->fontMetrics().averageCharWidth() * 8);
    ui_->tableMistakes->setColumnWidth(1, ui_->tableMistakes->fontMetrics().averageCharWidth() * 28);
    ui_->pages->setCurrentWidget(ui_->pageMistakes);
}

void ImportDialog::apply() {
    const std::vector<FieldChange> chosen = ui_->viewChanges->model().chosen();
    applying_ = true;
    const Desk::Saved saved = desk_.save(this, QStringLiteral("Importazione: %1").arg(name_in_list(read_.path)),
                                         [&chosen](Image& image, Job&) { write_changes(image, chosen); });
    applying_ = false;
    if (!saved.failure.isEmpty()) {
        tell_failure(this, QStringLiteral("Niente è stato importato: %1.").arg(saved.failure));
        return plan();
    }
    if (!saved.changed) return plan();
    desk_.tell(QStringLiteral("Importato %1: %2 nell'immagine")
                   .arg(name_in_list(read_.path), count_of_fields(static_cast<int>(chosen.size()))));
    accept();
}

void import_sheets(Desk& desk, QWidget& window) {
    ReadTables read;
    read.path =
        choose_existing_file(&window, QStringLiteral("Importa foglio"),
                             {QStringLiteral("Fogli (*.csv *.fods *.json)"), QStringLiteral("Tutti i file (*)")},
                             QFileInfo(desk.path()).path());
    if (read.path.isEmpty()) return;
    try {
        const bool done =
            run_job(&window, QStringLiteral("Lettura di %1").arg(name_in_list(read.path)), [&read](Job& job) {
                try {
                    read.tables = ctl::read_tables(read.path.toStdString());
                } catch (const TableError& error) {
                    read.mistake = error.mistake();
                }
                job(0);
            });
        if (!done) return;
    } catch (const std::exception& failure) {
        return tell_failure(&window, QStringLiteral("Il file non si legge: %1.").arg(words_of(failure)));
    }
    delete window.findChild<ImportDialog*>(QString(), Qt::FindDirectChildrenOnly);
    auto* const dialog = new ImportDialog(desk, std::move(read), &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->activateWindow();
}

}  // namespace kalco::app
