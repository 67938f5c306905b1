#pragma once

#include <QString>
#include <memory>

#include "app/binder/binder.h"

class QWidget;

namespace kalco::app {

/// One control's widget: shows the control's state, and tells the binder what the user does with it.
class View {
public:
    View(Control& control, QWidget& widget);
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    Control& control() const { return control_; }
    QWidget& widget() const { return widget_; }
    void mark() { marked_ = true; }
    bool marked() const { return marked_; }
    void sync();

protected:
    /// Shows what the kind has beyond the state of every control.
    virtual void show() {}

private:
    Control& control_;
    QWidget& widget_;
    QString own_hint_;
    bool marked_ = true;
};

/// The view of the control's kind; throws std::logic_error when the widget is of another kind.
std::unique_ptr<View> make_view(Binder& binder, Control& control, QWidget& widget);

/// The text of a box after the user's edit, with what typing does not let through taken out of the edited stretch.
std::string filtered_edit(const TextBox& box, const std::string& edited);

}  // namespace kalco::app
