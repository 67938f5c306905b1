#pragma once

#include <optional>
#include <string>

#include "ctl/script/json_lines.h"
#include "editor/window/user.h"

namespace kalco::script {

/// Where a script is played: on the model alone, or on a real window. The runner has checked that the control takes
/// input and that the row exists. A RuntimeError or ScriptError that a handler raised leaves these functions.
class Stage {
public:
    virtual ~Stage() = default;

    virtual frmKalco& form() = 0;
    virtual void start() = 0;
    virtual void focus(Control& control) = 0;
    virtual void click(Control& control) = 0;
    virtual void pick(Control& control, int row) = 0;
    virtual void double_click(Control& control, int row) = 0;
    virtual void type(TextBox& box, const std::string& text) = 0;
    virtual void select_tab(int tab) = 0;
    /// What was taken back or made again; nothing when there is none.
    virtual std::optional<std::string> undo() = 0;
    virtual std::optional<std::string> redo() = 0;
    /// Shows what the image holds after either.
    virtual void read_anew() = 0;
    virtual void close() = 0;
    /// What a user sees of a control, in the form of control_state.
    virtual Json state(Control& control) = 0;
};

/// The model alone: no toolkit, no display.
class ModelStage final : public Stage {
public:
    explicit ModelStage(frmKalco& form) : form_(form) {}

    frmKalco& form() override { return form_; }
    void start() override { user::start(form_); }
    void focus(Control& control) override { user::focus(form_, control); }
    void click(Control& control) override { user::click(form_, control); }
    void pick(Control& control, int row) override { user::pick(form_, control, row); }
    void double_click(Control& control, int row) override { user::double_click(form_, control, row); }
    void type(TextBox& box, const std::string& text) override { user::type(form_, box, text); }
    void select_tab(int tab) override { user::select_tab(form_, tab); }
    std::optional<std::string> undo() override { return user::undo(form_); }
    std::optional<std::string> redo() override { return user::redo(form_); }
    void read_anew() override { user::read_anew(form_); }
    void close() override { user::close(form_); }
    Json state(Control& control) override { return control_state(control); }

private:
    frmKalco& form_;
};

}  // namespace kalco::script
