#pragma once

#include "app/binder/binder.h"
#include "app/drafts/listeners.h"
#include "app/tools/desk.h"

namespace kalco::app {

class StatusLine;

/// The desk of the editor's window: everything that a tool wants is an action of the binder.
class WindowDesk : public Desk, private ImageObserver {
    Q_OBJECT

public:
    /// All of them must outlive the desk, and the image's use must end before it.
    WindowDesk(Binder& binder, Listeners& listeners, StatusLine& status);

    const Image* image() const override;
    QString path() const override;
    Saved save(QWidget* parent, const QString& what, const Steps& steps) override;
    void show_player(const PlayerPlace& place) override;
    void tell(const QString& text) override;

private:
    void committed(const Save& /*save*/) override { changed_ = committed_ = true; }
    void announce();

    Binder& binder_;
    frmKalco& form_;
    StatusLine& status_;
    bool changed_ = false;    ///< Something that was not announced yet.
    bool committed_ = false;  ///< The save that goes on.
    bool was_open_ = false;
};

}  // namespace kalco::app
