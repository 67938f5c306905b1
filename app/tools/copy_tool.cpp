#include "app/tools/copy_tool.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>

#include "app/file_dialogs.h"
#include "app/tools/job.h"
#include "app/tools/message.h"
#include "app/tools/words.h"
#include "disc/image/image_copy.h"

namespace kalco::app {
namespace {

/// "gioco 2026-11-21.bin" beside "gioco.bin".
QString proposed_path(const QFileInfo& image) {
    const QString day = QDate::currentDate().toString(Qt::ISODate);
    const QString ending = image.suffix().isEmpty() ? QString() : u'.' + image.suffix();
    return image.dir().filePath(QStringLiteral("%1 %2%3").arg(image.completeBaseName(), day, ending));
}

}  // namespace

void make_safe_copy(Desk& desk, QWidget& window) {
    const QString from = desk.path();
    if (from.isEmpty()) {
        tell_failure(&window, QStringLiteral("Di quest'immagine si è perso il percorso: riaprila, poi copiala."));
        return;
    }
    const QFileInfo image(from);
    const QString to = choose_new_file(
        &window, QStringLiteral("Copia di sicurezza"),
        {QStringLiteral("Immagini CD (*.bin *.img)"), QStringLiteral("Tutti i file (*)")}, proposed_path(image));
    if (to.isEmpty()) return;
    try {
        const bool made = run_job(&window, QStringLiteral("Copia di %1").arg(image.fileName()), [&](Job& job) {
            job.set_total(image.size());
            // Whoever chose an existing file has been asked.
            copy_image(from.toStdString(), to.toStdString(), {true, [&job](std::int64_t done) { job(done); }});
        });
        desk.tell(made ? QStringLiteral("Copiata: %1").arg(QDir::toNativeSeparators(to))
                       : QStringLiteral("Copia annullata: nessun file scritto"));
    } catch (const std::exception& failure) {
        tell_failure(&window, QStringLiteral("La copia non è stata fatta: %1.").arg(words_of(failure)));
    }
}

}  // namespace kalco::app
