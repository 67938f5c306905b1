#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "app/drafts/listeners.h"
#include "editor/window/frmKalco.h"

namespace kalco::app {

/// What the actions wrote and where, in words: saves of the image, exported files.
class DoneWatch final : private ImageObserver {
public:
    DoneWatch(frmKalco& form, Listeners& listeners);

    /// Since the last call: "Salvato: giocatore Italy, Favussolo – 16 byte", "Export/Italy.DAT, sostituito".
    QStringList take();

private:
    void committed(const Save& save) override;

    QStringList done_;
    bool saved_ = false;
    QString path_;  ///< What the export that goes on writes.
    bool was_there_ = false;
    qint64 written_at_ = 0;  ///< The time of the file that was there, in ms.
};

/// How a save is told.
QString saved_text(const Save& save);

}  // namespace kalco::app
