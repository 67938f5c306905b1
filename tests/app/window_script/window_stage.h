#pragma once

#include <exception>

#include "app/kalco_window.h"
#include "ctl/script/stage.h"

namespace kalco::test {

/// Plays a script on the real window: every action is mouse and keyboard events on the widgets, and what is shown is
/// read from them.
class WindowStage final : public script::Stage {
public:
    explicit WindowStage(frmKalco& form);

    frmKalco& form() override { return form_; }
    void start() override;
    void focus(Control& control) override;
    void click(Control& control) override;
    void pick(Control& control, int row) override;
    void double_click(Control& control, int row) override;
    void type(TextBox& box, const std::string& text) override;
    void select_tab(int tab) override;
    std::optional<std::string> undo() override;
    std::optional<std::string> redo() override;
    void read_anew() override;
    void close() override;
    script::Json state(Control& control) override;

private:
    QWidget& widget_of(const Control& control);
    QPoint press_row(const Control& control, int row);
    /// Lets the window settle and throws what the action raised.
    void settle();

    frmKalco& form_;
    app::KalcoWindow window_;
    std::exception_ptr failure_;
};

}  // namespace kalco::test
