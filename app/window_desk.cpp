#include "app/window_desk.h"

#include <utility>

#include "app/status_line.h"
#include "app/text.h"
#include "app/tools/message.h"
#include "app/tools/words.h"
#include "editor/window/user.h"
#include "work/settle.h"

namespace kalco::app {

WindowDesk::WindowDesk(Binder& binder, Listeners& listeners, StatusLine& status)
    : binder_(binder),
      form_(binder.form()),
      status_(status) {
    form_.image.add_observer(*this);
    listeners.after(form_.cmdOpen.click, [this] { changed_ = true; });
    connect(&binder_, &Binder::synced, this, &WindowDesk::announce);
}

const Image* WindowDesk::image() const {
    return form_.image.is_open() ? &form_.image : nullptr;
}

QString WindowDesk::path() const {
    return form_.image.is_open() ? QString::fromStdString(form_.ImagePath) : QString();
}

Desk::Saved WindowDesk::save(QWidget* parent, const QString& what, const Steps& steps) {
    Saved saved;
    saved.failure = QStringLiteral("Kalco sta facendo altro");
    binder_.act([&] {
        saved.failure.clear();
        committed_ = false;
        try {
            if (run_job(parent, what, [&](Job& job) { steps(form_.image, job); })) {
                settle(form_.image, form_.ImagePath);
                form_.image.commit(model_text(what));
            }
        } catch (const std::exception& failure) {
            saved.failure = words_of(failure);
        }
        form_.image.discard();
        saved.changed = committed_;
        if (committed_) user::read_anew(form_);
    });
    // The very last step of a save can fail when the save stands already.
    if (saved.changed && !saved.failure.isEmpty()) {
        tell_failure(parent, QStringLiteral("È fatto, ma con un errore: %1.").arg(std::exchange(saved.failure, {})));
    }
    return saved;
}

void WindowDesk::show_player(const PlayerPlace& place) {
    const auto* const pool = std::get_if<PoolRow>(&place);
    const auto* const roster = std::get_if<RosterPlace>(&place);
    binder_.act([&] {
        user::select_tab(form_, tab::players);
        const Team team = pool != nullptr ? default_list : roster->team;
        if (form_.cboSeqSQ.row() != team.value()) user::pick(form_, form_.cboSeqSQ, team.value());
        user::pick(form_, form_.listDat, pool != nullptr ? pool->value() : roster->player);
    });
    QWidget* const window = binder_.widget_of(form_.cboSeqSQ)->window();
    window->raise();
    window->activateWindow();
}

void WindowDesk::tell(const QString& text) {
    status_.tell(text);
}

void WindowDesk::announce() {
    const bool open = form_.image.is_open();
    if (binder_.acting() || binder_.over() || (!changed_ && open == was_open_)) return;
    changed_ = false;
    was_open_ = open;
    Q_EMIT image_changed();
}

}  // namespace kalco::app
