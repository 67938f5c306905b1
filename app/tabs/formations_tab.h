#pragma once

#include "app/drafts/drafts.h"
#include "app/tabs/tab.h"

class QLabel;

namespace kalco::app {

class PitchView;

/// The pitch under the mouse and the arrow keys with the names of its players, and the marks of what is not saved.
class FormationsTab : public Tab {
public:
    FormationsTab(Binder& binder, QWidget& page, const Drafts& drafts);

    void refresh() override;
    /// Pitch and bars, whichever is changed; the pitch when neither is.
    std::vector<CommandButton*> saves() override;

private:
    void connect_marker(int place);
    void step(int right, int down);
    void turn(int markers);
    QString bars_mark() const;
    void show_names();

    const Drafts& drafts_;
    PitchView& pitch_;
    QLabel& unsaved_pitch_;
    QLabel& unsaved_bars_;
};

}  // namespace kalco::app
