#include "editor/window/user.h"

#include <string>
#include <string_view>

#include "disc/runtime_error.h"
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

/// Every action ends with a commit, also one that a handler's failure ends: what was written before it stays. (A
/// failure of the image itself has discarded that.) Any other exception is no part of the editor's behaviour and
/// leaves nothing.
template <typename Steps>
auto act(frmKalco& form, Steps steps) {
    constexpr std::string_view unnamed = "Modifica";
    try {
        auto outcome = steps();
        form.image.commit(unnamed);
        return outcome;
    } catch (const RuntimeError&) {
        try {
            form.image.commit(unnamed);
        } catch (const RuntimeError&) {
            // The first failure is the one that is told.
        }
        throw;
    } catch (...) {
        form.image.discard();
        throw;
    }
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

Outcome move_focus(frmKalco& form, Control& control) {
    const Outcome reached = reach(form, control);
    if (reached != Outcome::done || !control.takes_focus()) return reached;
    return form.set_focus(control) ? Outcome::done : Outcome::focus_kept;
}

/// What is left of a text that is typed.
std::string typed(const TextBox& box, std::string_view text) {
    std::string result;
    for (const char character : text) {
        if (box.max_length() > 0 && result.size() >= static_cast<std::size_t>(box.max_length())) break;
        if (accepts_key(box, character)) result += character;
    }
    return result;
}

/// Where the user chooses the team, or club, of the tab that is shown.
ComboBox* team_choice(frmKalco& form) {
    switch (form.SSTab1.tab()) {
        case tab::players: return &form.cboSeqSQ;
        case tab::league: return &form.cboSqNC;
        case tab::kickers: return &form.cboSquadra;
        case tab::formations: return &form.cboSeqSQ2;
        case tab::numbers: return &form.cboSQNum;
        default: return nullptr;
    }
}

}  // namespace

void start(frmKalco& form) {
    act(form, [&form] {
        Form_Load(form);
        return Outcome::done;
    });
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
    return act(form, [&] { return move_focus(form, control); });
}

Outcome click(frmKalco& form, Control& control) {
    return act(form, [&] {
        const Outcome focused = move_focus(form, control);
        if (focused == Outcome::done) perform_click(control);
        return focused;
    });
}

Outcome pick(frmKalco& form, Control& control, int row) {
    return act(form, [&] {
        const Outcome focused = move_focus(form, control);
        if (focused == Outcome::done) perform_pick(control, row);
        return focused;
    });
}

Outcome double_click(frmKalco& form, Control& control, int row) {
    const Outcome picked = pick(form, control, row);
    if (picked != Outcome::done || control.kind() != Kind::list_box) return picked;
    return act(form, [&] {
        raise(static_cast<ListBox&>(control).double_click);
        return picked;
    });
}

Outcome press_again(frmKalco& form, ListBox& list) {
    return act(form, [&] {
        const Outcome reached = reach(form, list);
        if (reached == Outcome::done) raise(list.double_click);
        return reached;
    });
}

bool accepts_key(const TextBox& box, char character) {
    return !is_control_character(character) && (!box.key_filter || box.key_filter(character));
}

Outcome type(frmKalco& form, TextBox& box, std::string_view text) {
    return act(form, [&] {
        const Outcome focused = move_focus(form, box);
        if (focused == Outcome::done) box.set_text(typed(box, text));
        return focused;
    });
}

Outcome edit(frmKalco& form, TextBox& box, std::string_view text) {
    return act(form, [&] {
        const Outcome focused = move_focus(form, box);
        if (focused == Outcome::done && text != box.text()) box.set_text(text);
        return focused;
    });
}

Outcome select_tab(frmKalco& form, int tab) {
    if (tab == form.SSTab1.tab()) return Outcome::done;
    return act(form, [&] {
        const Outcome focused = move_focus(form, form.SSTab1);
        if (focused == Outcome::done) form.SSTab1.select(tab);
        return focused;
    });
}

std::optional<std::string> undo(frmKalco& form) {
    return act(form, [&form] { return form.history.undo(); });
}

std::optional<std::string> redo(frmKalco& form) {
    return act(form, [&form] { return form.history.redo(); });
}

void read_anew(frmKalco& form) {
    act(form, [&form] {
        read_lookup_lists(form);
        return Outcome::done;
    });
    ComboBox* const teams = team_choice(form);
    if (teams != nullptr && teams->row() >= 0) pick(form, *teams, teams->row());
}

}  // namespace kalco::user
