#include "app/tools/sectors/sectors_button.h"

#include "app/tools/words.h"
#include "work/repair.h"
#include "work/sheets/sheets.h"

namespace kalco::app {

SectorsButton::SectorsButton(Desk& desk, QWidget* parent) : QPushButton(parent), desk_(desk) {
    setObjectName(QStringLiteral("viewSectors"));
    setFlat(true);
    // The keyboard has the menu; between the fields of a tab this would only be in the way.
    setFocusPolicy(Qt::NoFocus);
    connect(&desk, &Desk::image_changed, this, &SectorsButton::look);
    look();
}

void SectorsButton::look() {
    const Image* const image = desk_.image();
    setVisible(image != nullptr);
    if (image == nullptr) return;
    try {
        const std::int64_t bad = check_image(*image, sheet_sectors(), {}).bad;
        setText(sectors_to_repair(bad));
        setToolTip(QStringLiteral("I settori dell'immagine che Kalco usa: quali sono e come ripararli"));
    } catch (const std::exception& failure) {
        setText(QStringLiteral("Settori non controllati"));
        setToolTip(words_of(failure));
    }
}

QString sectors_to_repair(std::int64_t count) {
    if (count == 0) return QStringLiteral("Settori in ordine");
    return count == 1 ? QStringLiteral("1 settore da riparare") : QStringLiteral("%1 settori da riparare").arg(count);
}

}  // namespace kalco::app
