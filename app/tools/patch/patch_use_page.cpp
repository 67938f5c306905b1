#include "app/tools/patch/patch_use_page.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "app/file_dialogs.h"
#include "app/text.h"
#include "app/tools/changes/change_words.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/message.h"
#include "app/tools/words.h"
#include "ctl/files.h"
#include "disc/codec/utf8.h"
#include "ui_patch_use_page.h"
#include "work/sheets/sheets.h"

namespace kalco::app {
namespace {

/// A patch is held whole.
constexpr std::size_t most_patch_bytes = std::size_t{1} << 30;

/// Bytes that others have written: UTF-8 or, where they are none, Latin-1.
QString text_of(std::string_view bytes) {
    if (broken_utf8(bytes)) return visible_text(qt_text(bytes));
    return visible_text(QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

/// "PPF 3.0, «Rose d'autunno»: 12 record, 40 byte; si può togliere".
QString about(const PpfPatch& patch) {
    const QString name = text_of(patch.description());
    return QStringLiteral("PPF %1.0%2: %3 record, %4 byte; %5.")
        .arg(patch.version())
        .arg(name.isEmpty() ? QString() : QStringLiteral(", «%1»").arg(name))
        .arg(patch.records().size())
        .arg(patch.bytes())
        .arg(patch.has_undo() ? QStringLiteral("si può togliere") : QStringLiteral("non si può togliere"));
}

/// "3 campi e 2 altri posti".
QString amount(const PatchMeaning& meaning) {
    QString fields = count_of_fields(static_cast<int>(meaning.fields.size()));
    const auto others = meaning.others.size();
    if (others == 0) return fields;
    return others == 1 ? QStringLiteral("%1 e un posto fuori dai campi").arg(fields)
                       : QStringLiteral("%1 e %2 posti fuori dai campi").arg(fields).arg(others);
}

}  // namespace

PatchUsePage::PatchUsePage(Desk& desk, QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::PatchUsePage>()),
      desk_(desk) {
    ui_->setupUi(this);
    connect(ui_->buttonChoose, &QPushButton::clicked, this, &PatchUsePage::choose);
    connect(ui_->radioApply, &QRadioButton::toggled, this, &PatchUsePage::try_on);
    connect(ui_->buttonSave, &QPushButton::clicked, this, &PatchUsePage::save);
    // It runs an event loop of its own, which whoever changed the image must not wait for.
    connect(&desk_, &Desk::image_changed, this, &PatchUsePage::try_on, Qt::QueuedConnection);
    try_on();
}

PatchUsePage::~PatchUsePage() = default;

PatchWay PatchUsePage::way() const {
    return ui_->radioApply->isChecked() ? PatchWay::apply : PatchWay::take_back;
}

void PatchUsePage::choose() {
    const QString path = choose_existing_file(window(), QStringLiteral("Scegli la patch"),
                                              {QStringLiteral("Patch (*.ppf)"), QStringLiteral("Tutti i file (*)")},
                                              QFileInfo(path_.isEmpty() ? desk_.path() : path_).path());
    if (!path.isEmpty()) open_patch(path);
}

void PatchUsePage::open_patch(const QString& path) {
    try {
        std::shared_ptr<const PpfPatch> patch;
        const QString doing = QStringLiteral("Lettura di %1").arg(QFileInfo(path).fileName());
        const bool read = run_job(window(), doing, [&](Job& job) {
            patch = std::make_shared<const PpfPatch>(ctl::read_file(path.toStdString(), most_patch_bytes));
            job(0);
        });
        if (!read) return;
        patch_ = std::move(patch);
    } catch (const std::exception& failure) {
        return tell_failure(window(), QStringLiteral("La patch non si legge: %1.").arg(words_of(failure)));
    }
    path_ = path;
    ui_->editPath->setText(QFileInfo(path).fileName());
    ui_->editPath->setToolTip(QDir::toNativeSeparators(path));
    ui_->labelAbout->setText(about(*patch_));
    ui_->radioUndo->setEnabled(patch_->has_undo());
    ui_->radioApply->setChecked(true);
    try_on();
}

void PatchUsePage::try_on() {
    const Image* const image = desk_.image();
    if (saving_ || image == nullptr) return;
    ui_->buttonSave->setText(way() == PatchWay::apply ? QStringLiteral("&Applica") : QStringLiteral("T&ogli"));
    ui_->buttonSave->setEnabled(false);
    for (QWidget* const widget : {static_cast<QWidget*>(ui_->radioApply), static_cast<QWidget*>(ui_->viewChanges)}) {
        widget->setEnabled(patch_ != nullptr);
    }
    if (!patch_) {
        ui_->radioUndo->setEnabled(false);
        return ui_->labelResult->setText(QStringLiteral("Scegli una patch: qui si vede che cosa cambierebbe."));
    }
    const int number = ++trials_;
    try {
        std::optional<PatchTrial> trial;
        const QString doing = QStringLiteral("Prova di %1").arg(QFileInfo(path_).fileName());
        const bool done = run_job(window(), doing, [&trial, image, patch = patch_, way = way()](Job& job) {
            trial.emplace(try_patch(*image, *patch, way));
            job(0);
        });
        if (number != trials_) return;
        if (done) return show_trial(*trial);
        show_failure(QStringLiteral("la prova è stata annullata"));
    } catch (const std::exception& failure) {
        if (number == trials_) show_failure(words_of(failure));
    }
}

void PatchUsePage::show_failure(const QString& why) {
    ui_->viewChanges->model().clear();
    ui_->labelResult->setText(QStringLiteral("Niente si può cambiare: %1.").arg(why));
}

void PatchUsePage::show_trial(const PatchTrial& trial) {
    const bool back = way() == PatchWay::take_back;
    fits_ = trial.fits;
    ChangesModel& model = ui_->viewChanges->model();
    QString result = fits_ ? QString() : QStringLiteral("Attenzione: è fatta per un'altra immagine. ");
    if (trial.in_conflict()) {
        model.set_value_titles(QStringLiteral("La patch si aspetta"), QStringLiteral("L'immagine ha"));
        ui_->viewChanges->show_changes(trial.conflicts.fields, trial.disc);
        result += QStringLiteral("Non si può %1, perché l'immagine ha altri valori: %2.")
                      .arg(back ? QStringLiteral("togliere") : QStringLiteral("applicare"), amount(trial.conflicts));
    } else {
        model.set_value_titles(QStringLiteral("Prima"), QStringLiteral("Dopo"));
        ui_->viewChanges->show_changes(trial.meaning.fields, trial.disc);
        if (trial.changes) {
            result += QStringLiteral("%1: %2.").arg(
                back ? QStringLiteral("Tornano com'erano") : QStringLiteral("Cambiano"), amount(trial.meaning));
        } else {
            result += back ? QStringLiteral("Niente da togliere: la patch non è applicata.")
                           : QStringLiteral("Niente da fare: la patch è già applicata.");
        }
    }
    ui_->labelResult->setText(result);
    ui_->buttonSave->setEnabled(!trial.in_conflict() && trial.changes);
}

void PatchUsePage::save() {
    const bool back = way() == PatchWay::take_back;
    const QString name = QFileInfo(path_).fileName();
    if (!fits_ && !ask(window(), QStringLiteral("«%1» è fatta per un'altra immagine.").arg(name),
                       back ? QStringLiteral("Togli lo stesso") : QStringLiteral("Applica lo stesso"))) {
        return;
    }
    saving_ = true;
    const Desk::Saved saved =
        desk_.save(window(), (back ? QStringLiteral("Patch tolta: %1") : QStringLiteral("Patch: %1")).arg(name),
                   [patch = patch_, way = way()](Image& image, Job& job) {
                       const auto conflicts = write_patch(image, *patch, way);
                       if (!conflicts.empty()) throw PpfError("the image has neither its old nor its new bytes");
                       job(0);
                   });
    saving_ = false;
    if (!saved.failure.isEmpty()) {
        tell_failure(window(), QStringLiteral("Niente è stato cambiato: %1.").arg(saved.failure));
    } else if (saved.changed) {
        desk_.tell((back ? QStringLiteral("Patch tolta: %1") : QStringLiteral("Patch applicata: %1")).arg(name));
    }
    try_on();
}

}  // namespace kalco::app
