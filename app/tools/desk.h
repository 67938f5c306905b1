#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "app/tools/job.h"
#include "disc/image/image.h"
#include "disc/players.h"

namespace kalco::app {

/// What a tool sees of the editor: the open image to read, one named save at a time, and the way to a player. No tool
/// knows a tab, no tab knows a tool.
class Desk : public QObject {
    Q_OBJECT

public:
    /// The open image, to be read only; nullptr when none is open.
    virtual const Image* image() const = 0;
    /// The path of the open image; empty when it is lost, and without an image.
    virtual QString path() const = 0;

    /// Writes into the image's buffer, on a thread of its own as in run_job(). What it throws undoes the whole save.
    using Steps = std::function<void(Image&, Job&)>;
    struct Saved {
        bool changed = false;  ///< A save is on the disk.
        QString failure;       ///< Why nothing was written; empty when nothing failed, or the user cancelled.
    };
    /// Makes one save of the steps: EDC and parities are renewed in the sectors where they fitted, and the editor's
    /// lists are read anew. `what` names it to the user ("Importazione: rose.csv"). Steps that change nothing save
    /// nothing. A box with the progress stands over `parent` meanwhile.
    virtual Saved save(QWidget* parent, const QString& what, const Steps& steps) = 0;

    /// Goes to a player on the first tab, as a user would, and brings the window to the front.
    virtual void show_player(const PlayerPlace& place) = 0;
    /// Tells in the window's status line what was done.
    virtual void tell(const QString& text) = 0;

Q_SIGNALS:
    /// The image's bytes are others: a save, one that was taken back, or another image.
    void image_changed();
};

}  // namespace kalco::app
