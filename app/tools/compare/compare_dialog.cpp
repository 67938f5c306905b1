#include "app/tools/compare/compare_dialog.h"

#include <QDir>
#include <QFileInfo>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <utility>

#include "app/tools/changes/change_words.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/job.h"
#include "app/tools/message.h"
#include "app/tools/other_image.h"
#include "app/tools/sheets/sheet_file.h"
#include "app/tools/words.h"
#include "ctl/files.h"
#include "ctl/table_json.h"
#include "ui_compare_dialog.h"
#include "work/other_bytes.h"
#include "work/sheet_tables.h"
#include "work/write_changes.h"

namespace kalco::app {
namespace {

QString name_of(const QString& path) {
    return QFileInfo(path).fileName();
}

/// The list as a table of each sheet that an import takes, or as one object a line.
std::string file_of_changes(const std::vector<FieldChange>& changes, const SheetFile& file) {
    Tables tables;
    std::string lines;
    for (const Sheet* const sheet : file.sheets) {
        std::vector<FieldChange> own;
        std::copy_if(changes.begin(), changes.end(), std::back_inserter(own),
                     [sheet](const FieldChange& each) { return each.sheet == sheet; });
        if (file.format != ctl::TableFormat::json) tables.push_back(table_of(*sheet, own));
        for (const FieldChange& change : own) lines += ctl::json_of_change(change).dump() + '\n';
    }
    return file.format == ctl::TableFormat::json ? lines : ctl::file_of_tables(tables, file.format, file.form);
}

}  // namespace

CompareDialog::CompareDialog(Desk& desk, std::unique_ptr<Image> other, QString path, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::CompareDialog>()),
      desk_(desk),
      other_(std::move(other)),
      path_(std::move(path)) {
    ui_->setupUi(this);
    setWindowTitle(QStringLiteral("Confronto con %1").arg(name_of(path_)));
    ChangesView& view = *ui_->viewChanges;
    view.offer_boxes(false);
    view.model().set_value_titles(QStringLiteral("Immagine aperta"), QStringLiteral("Altra immagine"));
    connect(&view.model(), &ChangesModel::chosen_changed, this,
            [this] { ui_->buttonTake->setEnabled(ui_->viewChanges->model().chosen_count() > 0); });
    connect(ui_->buttonTake, &QPushButton::clicked, this, &CompareDialog::take);
    connect(ui_->buttonCount, &QPushButton::clicked, this, &CompareDialog::count_others);
    connect(ui_->buttonExport, &QPushButton::clicked, this, &CompareDialog::export_list);
    connect(ui_->buttonClose, &QPushButton::clicked, this, &CompareDialog::reject);
    connect(&desk_, &Desk::image_changed, this, [this] {
        // Taking fields over touches nothing else.
        if (!taking_) other_places_.reset();
        compare();
    });
    compare();
}

CompareDialog::~CompareDialog() = default;

void CompareDialog::compare() {
    const Image* const image = desk_.image();
    if (image == nullptr) return reject();
    ChangesModel& view = ui_->viewChanges->model();
    try {
        const DiscBytes disc = read_sheets(*image);
        std::vector<FieldChange> changes = changes_between(disc, read_sheets(*other_));
        const int count = static_cast<int>(changes.size());
        ui_->labelResult->setText(
            count == 0
                ? QStringLiteral("Nessun campo è diverso.")
                : QStringLiteral("Diversi: %1. Metti il segno a quelli da prendere.").arg(count_of_fields(count)));
        ui_->buttonExport->setEnabled(count > 0);
        ui_->viewChanges->show_changes(std::move(changes), disc);
    } catch (const std::exception& failure) {
        view.clear();
        ui_->labelResult->setText(QStringLiteral("Il confronto non si può fare: %1.").arg(words_of(failure)));
        ui_->buttonExport->setEnabled(false);
    }
    show_others();
}

void CompareDialog::show_others() {
    ui_->buttonCount->setVisible(!other_places_);
    if (!other_places_) return ui_->labelOthers->setText(QStringLiteral("Fuori dai campi: non confrontati."));
    if (*other_places_ == 0) return ui_->labelOthers->setText(QStringLiteral("Fuori dai campi: tutto uguale."));
    ui_->labelOthers->setText(
        *other_places_ == 1
            ? QStringLiteral("Fuori dai campi: diversi in un posto, che non si può prendere.")
            : QStringLiteral("Fuori dai campi: diversi in %1 posti, che non si possono prendere.").arg(*other_places_));
}

void CompareDialog::count_others() {
    const Image* const image = desk_.image();
    if (image == nullptr) return;
    try {
        std::int64_t places = 0;
        const bool done = run_job(this, QStringLiteral("Confronto di tutti i byte"), [&](Job& job) {
            job.set_total(std::max(image->length(), other_->length()));
            const auto runs = other_differences(*image, *other_, [&job](std::int64_t bytes) { job(bytes); });
            places = static_cast<std::int64_t>(runs.size());
        });
        if (done) other_places_ = places;
    } catch (const std::exception& failure) {
        tell_failure(this, QStringLiteral("Confronto non finito: %1.").arg(words_of(failure)));
    }
    show_others();
}

void CompareDialog::take() {
    const std::vector<FieldChange> chosen = ui_->viewChanges->model().chosen();
    taking_ = true;
    const Desk::Saved saved = desk_.save(this, QStringLiteral("Presi da: %1").arg(name_of(path_)),
                                         [&chosen](Image& image, Job&) { write_changes(image, chosen); });
    taking_ = false;
    if (!saved.failure.isEmpty()) {
        return tell_failure(this, QStringLiteral("Niente è stato preso: %1.").arg(saved.failure));
    }
    if (!saved.changed) return;
    desk_.tell(QStringLiteral("Presi da %1: %2").arg(name_of(path_), count_of_fields(static_cast<int>(chosen.size()))));
}

void CompareDialog::export_list() {
    std::vector<const Sheet*> all;
    for (const Sheet& sheet : sheets()) all.push_back(&sheet);
    const auto file = choose_sheet_file(this, QStringLiteral("Esporta elenco"), all,
                                        path_beside(desk_.path()) + QStringLiteral(" differenze"));
    if (!file) return;
    try {
        const std::array images{desk_.path().toStdString(), path_.toStdString()};
        ctl::write_output(file->path.toStdString(), file_of_changes(ui_->viewChanges->model().changes(), *file),
                          images);
        desk_.tell(QStringLiteral("Esportato: %1").arg(QDir::toNativeSeparators(file->path)));
    } catch (const std::exception& failure) {
        tell_failure(this, QStringLiteral("Niente è stato esportato: %1.").arg(words_of(failure)));
    }
}

void compare_images(Desk& desk, QWidget& window) {
    const QString path = choose_other_image(&window, QStringLiteral("Confronta con un'altra immagine"), desk);
    if (path.isEmpty()) return;
    auto other = std::make_unique<Image>(open_to_read);
    if (!open_other_image(&window, *other, path, desk)) return;
    delete window.findChild<CompareDialog*>(QString(), Qt::FindDirectChildrenOnly);
    auto* const dialog = new CompareDialog(desk, std::move(other), path, &window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
    dialog->activateWindow();
    dialog->count_others();
}

}  // namespace kalco::app
