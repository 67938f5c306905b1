#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "editor/window/frmKalco.h"

/// What the user does. This layer alone owns the rules of input (disabled and hidden controls, focus order, key
/// filter, maximum length), so that the window and the script runner behave alike. A RuntimeError that leaves one of
/// these ends the program.
namespace kalco::user {

enum class Outcome {
    done,
    disabled,    ///< The control, or a frame around it, is switched off: no effect.
    hidden,      ///< The control is invisible, never on the screen, or on another tab: no effect.
    focus_kept,  ///< The loss of focus of another control took the focus back: the action was not carried out.
};

/// The start-up sequence with its file dialog.
void start(frmKalco& form);
/// Closes the window and the image; nothing is asked and nothing is saved.
void close(frmKalco& form);

/// Whether the control takes input now: done, disabled or hidden.
Outcome reach(const frmKalco& form, const Control& control);

/// Moves the focus only. Controls that take no focus are left alone.
Outcome focus(frmKalco& form, Control& control);
/// Focus, then the click: buttons, option buttons, pitch markers (first the press) and labels (no focus, no effect).
Outcome click(frmKalco& form, Control& control);
/// Selects a row that exists in a combo or list box: focus, then the click, also when it is selected already.
Outcome pick(frmKalco& form, Control& control, int row);
/// The same, then the double click.
Outcome double_click(frmKalco& form, Control& control, int row);
/// The second press of a double click whose first one has been a pick.
Outcome press_again(frmKalco& form, ListBox& list);
/// Focus, then types over the selected text.
Outcome type(frmKalco& form, TextBox& box, std::string_view text);
/// The text of a box that has the focus after a keystroke or a paste that a view carried out.
Outcome edit(frmKalco& form, TextBox& box, std::string_view text);
/// Focus goes to SSTab1, then the tab's work. The tab that is shown already: nothing.
Outcome select_tab(frmKalco& form, int tab);

/// Takes back the last save of the run that still stands, or makes it again; gives what it was, nothing when there is
/// none. read_anew() is to follow.
std::optional<std::string> undo(frmKalco& form);
std::optional<std::string> redo(frmKalco& form);
/// After the image was changed by other means than the window's own: reads the three lists of the start anew and picks
/// the team again that is chosen on the tab that is shown.
void read_anew(frmKalco& form);

/// What typing lets through: no control characters, and what the box's key filter takes.
bool accepts_key(const TextBox& box, char character);

}  // namespace kalco::user
