#include "app/tools/patch/patch_make_page.h"

#include <QDir>
#include <QFileInfo>
#include <array>
#include <utility>

#include "app/file_dialogs.h"
#include "app/tools/job.h"
#include "app/tools/message.h"
#include "app/tools/other_image.h"
#include "app/tools/sheets/sheet_file.h"
#include "app/tools/words.h"
#include "ctl/files.h"
#include "ctl/patch_file.h"
#include "disc/image/file_error.h"
#include "disc/image/new_file.h"
#include "ui_patch_make_page.h"
#include "work/patch_make.h"
#include "work/ppf.h"

namespace kalco::app {
namespace {

/// As many whole characters as the patch has room for.
std::string description_of(QString text) {
    while (text.toUtf8().size() > static_cast<qsizetype>(ppf_description_bytes)) text.chop(1);
    return text.toStdString();
}

}  // namespace

PatchMakePage::PatchMakePage(Desk& desk, QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::PatchMakePage>()),
      desk_(desk) {
    ui_->setupUi(this);
    ui_->editDescription->setMaxLength(static_cast<int>(ppf_description_bytes));
    connect(ui_->buttonOriginal, &QPushButton::clicked, this, &PatchMakePage::choose);
    connect(ui_->buttonMake, &QPushButton::clicked, this, &PatchMakePage::make);
}

PatchMakePage::~PatchMakePage() = default;

void PatchMakePage::choose() {
    const QString path = choose_other_image(window(), QStringLiteral("Scegli l'immagine originale"), desk_);
    if (path.isEmpty()) return;
    auto original = std::make_unique<Image>(open_to_read);
    if (!open_other_image(window(), *original, path, desk_)) return;
    original_ = std::move(original);
    original_path_ = path;
    ui_->editOriginal->setText(QFileInfo(path).fileName());
    ui_->editOriginal->setToolTip(QDir::toNativeSeparators(path));
    ui_->buttonMake->setEnabled(true);
}

void PatchMakePage::make() {
    if (desk_.image() == nullptr || !original_) return;
    // Under the image's own name emulators would load it by themselves.
    const QString path = choose_new_file(window(), QStringLiteral("Crea la patch"), {QStringLiteral("Patch (*.ppf)")},
                                         path_beside(desk_.path()) + QStringLiteral(" modifiche.ppf"));
    if (path.isEmpty()) return;
    try {
        ctl::refuse_patch_beside(path.toStdString(), {original_path_.toStdString(), desk_.path().toStdString()});
    } catch (const FileError&) {
        const QString question = QStringLiteral(
            "Gli emulatori caricano da soli una patch con il nome dell'immagine, e una vecchia nasconde le modifiche "
            "fatte dopo.");
        if (!ask(window(), question, QStringLiteral("Crea lo stesso"))) return;
    }
    write(path);
}

void PatchMakePage::write(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    const Image& edited = *desk_.image();
    PatchSize size;
    bool done = false;
    try {
        const std::string description = description_of(ui_->editDescription->text());
        const std::array images{original_path_.toStdString(), desk_.path().toStdString()};
        done = run_job(window(), QStringLiteral("Creazione di %1").arg(name), [&](Job& job) {
            job.set_total(edited.length());
            NewFile file(ctl::output_target(path.toStdString(), images));
            size = make_patch(
                *original_, edited, description, [&file](std::string_view bytes) { file.write(bytes); },
                [&job](std::int64_t bytes) { job(bytes); });
            if (size.records > 0) file.finish();
        });
    } catch (const std::exception& failure) {
        return tell_failure(window(), QStringLiteral("La patch non è stata creata: %1.").arg(words_of(failure)));
    }
    if (done && size.records == 0) {
        return tell_failure(window(), QStringLiteral("Le due immagini sono uguali: non c'è niente da mettere in una "
                                                     "patch."));
    }
    desk_.tell(done ? QStringLiteral("Creata: %1 (%2 record, %3 byte)").arg(name).arg(size.records).arg(size.bytes)
                    : QStringLiteral("Creazione annullata: nessun file scritto"));
}

}  // namespace kalco::app
