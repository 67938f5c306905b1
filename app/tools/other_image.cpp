#include "app/tools/other_image.h"

#include <QFileInfo>
#include <filesystem>

#include "app/file_dialogs.h"
#include "app/tools/message.h"
#include "app/tools/words.h"
#include "disc/image/file_error.h"
#include "work/container.h"

namespace kalco::app {

QString choose_other_image(QWidget* parent, const QString& title, const Desk& desk) {
    return choose_existing_file(parent, title,
                                {QStringLiteral("Immagini CD (*.bin *.img)"), QStringLiteral("Tutti i file (*)")},
                                QFileInfo(desk.path()).path());
}

bool open_other_image(QWidget* parent, Image& image, const QString& path, const Desk& desk) {
    const QString name = QFileInfo(path).fileName();
    try {
        std::error_code ignored;
        if (std::filesystem::equivalent(path.toStdString(), desk.path().toStdString(), ignored)) {
            tell_failure(parent, QStringLiteral("«%1» è l'immagine già aperta: scegline un'altra.").arg(name));
            return false;
        }
        image.open(path.toStdString());
        const FileBytes bytes = [&image](std::int64_t offset, std::size_t count) {
            return image.read(offset + 1, static_cast<int>(count));
        };
        const ContainerReport report = look_at_container(image.length(), bytes);
        if (!report.refusal.empty()) throw FileError(path.toStdString(), report.refusal);
    } catch (const std::exception& failure) {
        tell_failure(parent, QStringLiteral("«%1» non si può leggere: %2.").arg(name, words_of(failure)));
        return false;
    }
    return true;
}

}  // namespace kalco::app
