#include "app/tools/sectors/sectors_dialog.h"

#include <QHeaderView>
#include <QPushButton>
#include <utility>

#include "app/tools/message.h"
#include "app/tools/sectors/sectors_button.h"
#include "app/tools/words.h"
#include "disc/image/history.h"
#include "ui_sectors_dialog.h"
#include "work/repair.h"
#include "work/sheets/sheets.h"

namespace kalco::app {
namespace {

constexpr int row_padding = 6;

/// More sectors than the history of saves holds, with their bytes before and after.
constexpr std::size_t most_undone = History::most_bytes / (2 * sector_bytes + sizeof(SectorChange));

/// A disc holds fewer sectors than an int counts.
std::vector<int> numbers_of(const std::vector<check::BadSector>& sectors) {
    std::vector<int> numbers;
    numbers.reserve(sectors.size());
    for (const check::BadSector& each : sectors) numbers.push_back(static_cast<int>(each.sector));
    return numbers;
}

/// The system area's are never repaired.
bool can_repair(const std::vector<check::BadSector>& sectors) {
    return !sectors.empty() && sectors.back().sector >= system_area_sectors;
}

}  // namespace

SectorsDialog::SectorsDialog(Desk& desk, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::SectorsDialog>()),
      desk_(desk) {
    ui_->setupUi(this);
    ui_->tableSectors->setModel(&rows_);
    ui_->tableSectors->verticalHeader()->hide();
    ui_->tableSectors->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + row_padding);
    ui_->tableSectors->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    ui_->tableSectors->horizontalHeader()->setStretchLastSection(true);
    connect(ui_->buttonRepair, &QPushButton::clicked, this, &SectorsDialog::repair);
    connect(ui_->buttonAll, &QPushButton::clicked, this, &SectorsDialog::check_all);
    connect(ui_->buttonClose, &QPushButton::clicked, this, &SectorsDialog::reject);
    connect(&desk_, &Desk::image_changed, this, &SectorsDialog::check_tables);
    check_tables();
}

SectorsDialog::~SectorsDialog() = default;

void SectorsDialog::check_tables() {
    const Image* const image = desk_.image();
    if (image == nullptr) return reject();
    std::vector<check::BadSector> bad;
    try {
        const check::Listener listener{[&](const check::BadSector& each) { bad.push_back(each); }};
        const check::Summary summary = check_image(*image, sheet_sectors(), listener);
        show_result(summary, std::move(bad), false);
    } catch (const std::exception& failure) {
        show_result({}, {}, false);
        ui_->labelResult->setText(QStringLiteral("Non controllati: %1.").arg(words_of(failure)));
    }
}

void SectorsDialog::check_all() {
    const Image* const image = desk_.image();
    if (image == nullptr) return;
    std::vector<check::BadSector> bad;
    check::Summary summary;
    try {
        const bool done = run_job(this, QStringLiteral("Controllo di tutta l'immagine"), [&](Job& job) {
            job.set_total(image->length() / sector_bytes);
            const check::Listener listener{[&](const check::BadSector& each) { bad.push_back(each); },
                                           [&](std::int64_t sectors) { job(sectors); }};
            summary = check_image(*image, std::nullopt, listener);
        });
        if (done) show_result(summary, std::move(bad), true);
    } catch (const std::exception& failure) {
        tell_failure(this, QStringLiteral("Controllo non finito: %1.").arg(words_of(failure)));
    }
}

void SectorsDialog::repair() {
    const std::vector<int> numbers = numbers_of(rows_.sectors());
    if (numbers.size() > most_undone &&
        !ask(this,
             QStringLiteral("Sono %1 settori: una riparazione così grande non si può annullare.").arg(numbers.size()),
             QStringLiteral("Ripara lo stesso"))) {
        return;
    }
    const Desk::Saved saved =
        desk_.save(this, QStringLiteral("Riparazione dei settori"), [&numbers](Image& image, Job& job) {
            job.set_total(static_cast<std::int64_t>(numbers.size()));
            repair_image(image, numbers, [&job](std::int64_t done) { job(done); });
        });
    if (!saved.failure.isEmpty()) {
        tell_failure(this, QStringLiteral("Nessun settore è stato riparato: %1.").arg(saved.failure));
    }
}

void SectorsDialog::show_result(const check::Summary& summary, std::vector<check::BadSector> bad, bool whole) {
    const QString scope = whole ? QStringLiteral("Tutta l'immagine") : QStringLiteral("Le tabelle di Kalco");
    ui_->labelResult->setText(QStringLiteral("%1 (%2 settori): %3.")
                                  .arg(scope)
                                  .arg(summary.sectors)
                                  .arg(sectors_to_repair(summary.bad).toLower()));
    ui_->buttonRepair->setEnabled(can_repair(bad));
    rows_.show_sectors(std::move(bad));
}

}  // namespace kalco::app
