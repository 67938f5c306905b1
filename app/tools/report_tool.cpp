#include "app/tools/report_tool.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <array>

#include "app/file_dialogs.h"
#include "app/tools/job.h"
#include "app/tools/message.h"
#include "app/tools/words.h"
#include "ctl/files.h"
#include "work/report/page.h"
#include "work/report/report.h"
#include "work/sheets/sheets.h"

namespace kalco::app {

void write_report(Desk& desk, QWidget& window) {
    const Image* const image = desk.image();
    if (image == nullptr) return;
    const QFileInfo file(desk.path());
    const QString name = file.completeBaseName().isEmpty() ? QStringLiteral("relazione") : file.completeBaseName();
    const QString path = choose_new_file(&window, QStringLiteral("Relazione"), {QStringLiteral("Pagine (*.html)")},
                                         file.dir().filePath(name + QStringLiteral(".html")));
    if (path.isEmpty()) return;
    try {
        const bool written = run_job(&window, QStringLiteral("Relazione su %1").arg(file.fileName()), [&](Job&) {
            const std::string page = report_page(read_report(read_sheets(*image)), file.fileName().toStdString());
            ctl::write_output(path.toStdString(), page, std::array{desk.path().toStdString()});
        });
        if (!written) return;
    } catch (const std::exception& failure) {
        return tell_failure(&window, QStringLiteral("La relazione non è stata scritta: %1.").arg(words_of(failure)));
    }
    desk.tell(QStringLiteral("Scritta: %1").arg(QDir::toNativeSeparators(path)));
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
        tell_failure(&window, QStringLiteral("La pagina è scritta, ma nessun programma la apre:\n%1").arg(path));
    }
}

}  // namespace kalco::app
