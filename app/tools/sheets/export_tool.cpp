#include "app/tools/sheets/export_tool.h"

#include <QDir>
#include <QFileInfo>
#include <array>

#include "app/tools/job.h"
#include "app/tools/message.h"
#include "app/tools/sheets/sheet_file.h"
#include "app/tools/words.h"
#include "ctl/files.h"
#include "work/sheet_tables.h"

namespace kalco::app {

void export_sheets(Desk& desk, QWidget& window) {
    std::vector<const Sheet*> all;
    for (const Sheet& sheet : sheets()) all.push_back(&sheet);
    const auto file = choose_sheet_file(&window, QStringLiteral("Esporta foglio"), all, path_beside(desk.path()));
    const Image* const image = desk.image();
    if (!file || image == nullptr) return;
    try {
        const QString doing = QStringLiteral("Esportazione di %1").arg(QFileInfo(file->path).fileName());
        const bool written = run_job(&window, doing, [&](Job& job) {
            const DiscBytes disc = read_sheets(*image);
            Tables tables;
            for (const Sheet* const sheet : file->sheets) tables.push_back(table_of(*sheet, disc));
            const std::string bytes = ctl::file_of_tables(tables, file->format, file->form);
            job(0);
            ctl::write_output(file->path.toStdString(), bytes, std::array{desk.path().toStdString()});
        });
        desk.tell(written ? QStringLiteral("Esportato: %1").arg(QDir::toNativeSeparators(file->path))
                          : QStringLiteral("Esportazione annullata: nessun file scritto"));
    } catch (const std::exception& failure) {
        tell_failure(&window, QStringLiteral("Niente è stato esportato: %1.").arg(words_of(failure)));
    }
}

}  // namespace kalco::app
