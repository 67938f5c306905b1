#pragma once

#include <QObject>
#include <exception>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "editor/window/frmKalco.h"

class QTabWidget;

namespace kalco::app {

class View;

/// Connects the registry of controls to the widgets of a window by name and kind: "lblGioc(3)" is the widget named
/// "lblGioc_3". The model's changes mark views, which are brought up to date when the user's action is over and before
/// a box is shown; what the user does reaches the model through user.h only, one action for one input.
class Binder : public QObject {
    Q_OBJECT

public:
    Binder(frmKalco& form, QWidget& window);
    ~Binder() override;

    frmKalco& form() const { return form_; }
    /// nullptr for a control that is never on the screen.
    QWidget* widget_of(const Control& control) const;
    Control* control_of(const QObject* widget) const;

    /// Where the keyboard's focus goes after an action: to the control that has the model's focus, or it stays on a
    /// widget that is no control (the pitch).
    enum class Focus { follow, stay };

    /// Carries out one action of the user. Nothing happens while another one runs (behind a box) or after the end.
    void act(const std::function<void()>& action, Focus focus = Focus::follow);
    /// Brings all marked views up to date.
    void sync();
    /// Marks a view although its control did not change: the widget shows what the user tried.
    void touch(const Control& control);
    /// Whether an action goes on: a box of it is shown.
    bool acting() const { return acting_; }
    /// Whether the run has ended, well or not; no action is carried out any more.
    bool over() const { return over_; }

    /// An action failed; the run is over.
    std::function<void(std::exception_ptr)> on_failure;
    /// The model ended the run.
    std::function<void()> on_ended;

Q_SIGNALS:
    /// The widgets show the model again: an action is over, or shows a box.
    void synced();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void bind(Control& control, QWidget& widget);
    void watch(QObject& object, Control& control);
    void sync_focus();
    void settle_focus(QWidget& left);
    bool focus_arrived(QObject* watched, Control& control, Qt::FocusReason reason);
    bool key_pressed(Control& control, int key);
    void step_in_group(OptionButton& from, int step);
    void sync_tab_stops();
    bool tab_is_moving() const;

    frmKalco& form_;
    QWidget& window_;
    QTabWidget* tabs_ = nullptr;
    std::vector<std::unique_ptr<View>> views_;
    std::unordered_map<const Control*, View*> view_of_;
    std::unordered_map<const QObject*, Control*> control_of_;
    bool acting_ = false;
    bool syncing_ = false;
    bool over_ = false;
};

}  // namespace kalco::app
