#pragma once

#include <QLineEdit>
#include <stdexcept>
#include <vector>

#include "app/binder/binder.h"

namespace kalco::app {

/// What one tab shows beyond its controls: marks, pictures, summaries. It reads the model, and what the user does with
/// its widgets becomes an action of the binder.
class Tab {
public:
    Tab(Binder& binder, QWidget& page) : binder_(binder), form_(binder.form()), page_(page) {}
    virtual ~Tab() = default;
    Tab(const Tab&) = delete;
    Tab& operator=(const Tab&) = delete;

    /// Runs after every action.
    virtual void refresh() {}
    /// The buttons that the key for saving presses now.
    virtual std::vector<CommandButton*> saves() = 0;

protected:
    /// A widget of the page that is no control.
    template <typename Widget>
    Widget& view(const char* name) const {
        auto* const found = page_.findChild<Widget*>(QString::fromLatin1(name));
        if (found == nullptr) throw std::logic_error(std::string("the page has no ") + name);
        return *found;
    }

    /// Buttons must not move when a line that is often empty has something to say.
    static void keep_place(QWidget& line) {
        QSizePolicy policy = line.sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        line.setSizePolicy(policy);
    }

    template <typename Widget>
    Widget& widget_of(const Control& control) const {
        return dynamic_cast<Widget&>(*binder_.widget_of(control));
    }

    Binder& binder_;
    frmKalco& form_;
    QWidget& page_;
};

}  // namespace kalco::app
