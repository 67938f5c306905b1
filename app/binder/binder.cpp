#include "app/binder/binder.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QTabBar>
#include <QTabWidget>
#include <stdexcept>
#include <utility>

#include "app/binder/view.h"
#include "app/widgets/pitch_view.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

QString widget_name(const Control& control) {
    QString name = QString::fromStdString(control.name());
    name.replace(u'(', u'_').remove(u')');
    return name;
}

}  // namespace

Binder::Binder(frmKalco& form, QWidget& window)
    : form_(form),
      window_(window),
      tabs_(window.findChild<QTabWidget*>(widget_name(form.SSTab1))) {
    for (Control* control : form_.registry.all()) {
        if (!control->on_screen()) continue;
        auto* const widget = window_.findChild<QWidget*>(widget_name(*control));
        if (widget == nullptr) throw std::logic_error("no widget is named as " + control->name());
        bind(*control, *widget);
    }
    sync();
}

Binder::~Binder() {
    for (const auto& view : views_) view->control().changed = nullptr;
}

void Binder::bind(Control& control, QWidget& widget) {
    views_.push_back(make_view(*this, control, widget));
    View* const view = views_.back().get();
    view_of_[&control] = view;
    control.changed = [view] { view->mark(); };
    watch(widget, control);
    if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) watch(*tabs->tabBar(), control);
}

void Binder::watch(QObject& object, Control& control) {
    control_of_[&object] = &control;
    object.installEventFilter(this);
}

QWidget* Binder::widget_of(const Control& control) const {
    const auto found = view_of_.find(&control);
    return found == view_of_.end() ? nullptr : &found->second->widget();
}

Control* Binder::control_of(const QObject* widget) const {
    const auto found = control_of_.find(widget);
    return found == control_of_.end() ? nullptr : found->second;
}

void Binder::touch(const Control& control) {
    if (const auto found = view_of_.find(&control); found != view_of_.end()) found->second->mark();
}

void Binder::act(const std::function<void()>& action, Focus focus) {
    if (acting_ || over_) return;
    acting_ = true;
    std::exception_ptr failure;
    try {
        action();
    } catch (...) {
        // No exception may pass through Qt's event loop.
        failure = std::current_exception();
    }
    acting_ = false;
    over_ = failure != nullptr || form_.ended.has_value();
    sync();
    if (focus == Focus::follow) sync_focus();
    if (failure != nullptr) {
        if (on_failure) on_failure(failure);
    } else if (over_ && on_ended) {
        on_ended();
    }
}

void Binder::sync() {
    syncing_ = true;
    // The window's own, which stands behind a box too.
    QWidget* const focused = window_.focusWidget();
    for (const auto& view : views_) {
        if (view->marked()) view->sync();
    }
    sync_tab_stops();
    if (focused != nullptr && !focused->isEnabled()) settle_focus(*focused);
    syncing_ = false;
    Q_EMIT synced();
}

void Binder::sync_focus() {
    Control* const focused = form_.focused();
    if (focused == nullptr || over_) return;
    QWidget* widget = widget_of(*focused);
    if (widget == tabs_) widget = tabs_->tabBar();
    if (widget == nullptr || widget->hasFocus() || !widget->isEnabled() || !widget->isVisible()) return;
    const bool was_syncing = std::exchange(syncing_, true);
    widget->setFocus(Qt::OtherFocusReason);
    syncing_ = was_syncing;
}

/// A widget that was switched off under the keyboard hands it to the next field of its frame: Qt would go on to any
/// next widget, and the next press of the same key could do what nobody wanted.
void Binder::settle_focus(QWidget& left) {
    const Control* const old = control_of(&left);
    if (old == nullptr || !window_.isAncestorOf(&left)) return;
    QWidget* on_tab = nullptr;
    for (QWidget* widget = left.nextInFocusChain(); widget != &left; widget = widget->nextInFocusChain()) {
        const Control* const control = control_of(widget);
        if (control == nullptr || control->kind() == Kind::command_button || control->tab() != old->tab()) continue;
        if (!control->takes_focus() || !widget->isEnabled() || !widget->isVisible()) continue;
        if (control->frame() == old->frame()) return widget->setFocus(Qt::OtherFocusReason);
        if (on_tab == nullptr) on_tab = widget;
    }
    (on_tab != nullptr ? on_tab : tabs_->tabBar())->setFocus(Qt::OtherFocusReason);
}

bool Binder::tab_is_moving() const {
    return tabs_->tabBar()->currentIndex() != form_.SSTab1.tab();
}

bool Binder::focus_arrived(QObject* watched, Control& control, Qt::FocusReason reason) {
    // What Qt does by itself (a window that comes to the front, a popup that closes, a widget that is disabled or
    // hidden) is no action of the user.
    const bool moved_by_user = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                               reason == Qt::ShortcutFocusReason || reason == Qt::MouseFocusReason;
    if (!moved_by_user || syncing_ || acting_ || over_ || tab_is_moving()) return false;
    act([this, &control] { user::focus(form_, control); });
    return QApplication::focusWidget() != watched;
}

bool Binder::key_pressed(Control& control, int key) {
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (control.kind() == Kind::command_button && enter) {
        act([this, &control] { user::click(form_, control); });
        return true;
    }
    if (control.kind() == Kind::text_box && enter) {
        const QString button = widget_of(control)->property("enterClicks").toString();
        Control* const target = form_.registry.find(button.toStdString());
        if (target == nullptr) return false;
        act([this, target] { user::click(form_, *target); });
        return true;
    }
    if (control.kind() == Kind::option_button) {
        const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
        if (!back && key != Qt::Key_Down && key != Qt::Key_Right) return false;
        step_in_group(static_cast<OptionButton&>(control), back ? -1 : 1);
        return true;
    }
    return false;
}

void Binder::step_in_group(OptionButton& from, int step) {
    std::vector<OptionButton*> group;
    std::size_t place = 0;
    for (Control* control : form_.registry.all()) {
        if (control->kind() != Kind::option_button || control->frame() != from.frame()) continue;
        if (control == &from) place = group.size();
        group.push_back(static_cast<OptionButton*>(control));
    }
    if (step < 0 ? place == 0 : place + 1 == group.size()) return;
    OptionButton* const target = group[step < 0 ? place - 1 : place + 1];
    act([this, target] { user::click(form_, *target); });
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    Control* const control = control_of(watched);
    if (control == nullptr) return false;
    switch (event->type()) {
        case QEvent::FocusIn: return focus_arrived(watched, *control, static_cast<QFocusEvent*>(event)->reason());
        case QEvent::KeyPress: return key_pressed(*control, static_cast<QKeyEvent*>(event)->key());
        case QEvent::Shortcut:
            // The button itself would wait for its picture to be pressed.
            if (control->kind() != Kind::command_button) return false;
            act([this, control] { user::click(form_, *control); });
            return true;
        case QEvent::Wheel: return control->kind() == Kind::tab_control;  // Turning it must not leave the tab.
        default: return false;
    }
}

void Binder::sync_tab_stops() {
    // A group of option buttons is one stop of the tab key: the selected one, or else the first.
    std::unordered_map<const Frame*, OptionButton*> stops;
    for (const auto& view : views_) {
        if (view->control().kind() != Kind::option_button) continue;
        auto& option = static_cast<OptionButton&>(view->control());
        OptionButton*& stop = stops[option.frame()];
        if (stop == nullptr || option.value()) stop = &option;
    }
    for (const auto& view : views_) {
        if (view->control().kind() != Kind::option_button) continue;
        const auto& option = static_cast<OptionButton&>(view->control());
        view->widget().setFocusPolicy(stops[option.frame()] == &option ? Qt::TabFocus : Qt::NoFocus);
    }
}

}  // namespace kalco::app
