#include "editor/window/user.h"

#include <string>

#include "editor/window/shell.h"

namespace kalco::user {
namespace {

bool is_control_character(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code < 0x20 || (code >= 0x7F && code < 0xA0);
}

bool shown(const frmKalco& form, const Control& control) {
    if (!control.on_screen() || !control.visible()) return false;
    if (control.tab() != Place::outside_tabs && control.tab() != form.SSTab1.tab()) return false;
    return control.frame() == nullptr || shown(form, *control.frame());
}

void perform_click(Control& control) {
    switch (control.kind()) {
        case Kind::command_button: raise(static_cast<CommandButton&>(control).click); break;
        case Kind::option_button: {
            auto& option = static_cast<OptionButton&>(control);
            if (!option.value()) option.set_value(true);
            break;
        }
        case Kind::pitch_marker: {
            auto& marker = static_cast<PitchMarker&>(control);
            raise(marker.press);
            raise(marker.click);
            break;
        }
        default: break;
    }
}

void perform_pick(Control& control, int row) {
    if (control.kind() == Kind::combo_box) static_cast<ComboBox&>(control).pick(row);
    if (control.kind() == Kind::list_box) static_cast<ListBox&>(control).pick(row);
}

}  // namespace

void start(frmKalco& form) {
    Form_Load(form);
}

void close(frmKalco& form) {
    if (!form.ended) form.ended = Ending::closed;
    form.image.close();
}

Outcome reach(const frmKalco& form, const Control& control) {
    if (!control.takes_input()) return Outcome::disabled;
    return shown(form, control) ? Outcome::done : Outcome::hidden;
}

Outcome focus(frmKalco& form, Control& control) {
    const Outcome reached = reach(form, control);
    if (reached != Outcome::done || !control.takes_focus()) return reached;
    return form.set_focus(control) ? Outcome::done : Outcome::focus_kept;
}

Outcome click(frmKalco& form, Control& control) {
    const Outcome focused = focus(form, control);
    if (focused == Outcome::done) perform_click(control);
    return focused;
}

Outcome pick(frmKalco& form, Control& control, int row) {
    const Outcome focused = focus(form, control);
    if (focused == Outcome::done) perform_pick(control, row);
    return focused;
}

Outcome double_click(frmKalco& form, Control& control, int row) {
    const Outcome picked = pick(form, control, row);
    if (picked != Outcome::done || control.kind() != Kind::list_box) return picked;
    raise(static_cast<ListBox&>(control).double_click);
    return picked;
}

Outcome press_again(frmKalco& form, ListBox& list) {
    const Outcome reached = reach(form, list);
    if (reached == Outcome::done) raise(list.double_click);
    return reached;
}

bool accepts_key(const TextBox& box, char character) {
    return !is_control_character(character) && (!box.key_filter || box.key_filter(character));
}

Outcome type(frmKalco& form, TextBox& box, std::string_view text) {
    const Outcome focused = focus(form, box);
    if (focused != Outcome::done) return focused;
    std::string typed;
    for (const char character : text) {
        if (box.max_length() > 0 && typed.size() >= static_cast<std::size_t>(box.max_length())) break;
        if (accepts_key(box, character)) typed += character;
    }
    box.set_text(typed);
    return Outcome::done;
}

Outcome edit(frmKalco& form, TextBox& box, std::string_view text) {
    const Outcome focused = focus(form, box);
    if (focused == Outcome::done && text != box.text()) box.set_text(text);
    return focused;
}

Outcome select_tab(frmKalco& form, int tab) {
    if (tab == form.SSTab1.tab()) return Outcome::done;
    const Outcome focused = focus(form, form.SSTab1);
    if (focused == Outcome::done) form.SSTab1.select(tab);
    return focused;
}

}  // namespace kalco::user
