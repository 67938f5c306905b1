#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "editor/editor.h"
#include "editor/window/user.h"
#include "support/fake_platform.h"
#include "support/filled_disc.h"
#include "support/memory_storage.h"
#include "support/outcome.h"
#include "support/temporary_home.h"

namespace kalco::test {

/// What the program tells after a save and after an export.
inline const std::string saved = "Salvataggio effettuato con successo";
inline const std::string exported = "File creato con successo";

/// The whole editor on an image in memory, started and driven as a user drives it.
class EditorRun : ImageObserver {
public:
    struct Write {
        std::int64_t position;
        std::string bytes;
    };

    explicit EditorRun(const std::string& image = filled_image());

    void choose_team(int team) { EXPECT_EQ(user::pick(form, form.cboSeqSQ, team), user::Outcome::done); }
    void choose_player(int row) { EXPECT_EQ(user::pick(form, form.listDat, row), user::Outcome::done); }
    void type(TextBox& box, const std::string& text) { EXPECT_EQ(user::type(form, box, text), user::Outcome::done); }
    void click(Control& control) { EXPECT_EQ(user::click(form, control), user::Outcome::done); }
    /// Picks the row of a text.
    void pick_text(ComboBox& combo, const std::string& text);
    /// A side file below the program's directory, chosen in the dialog that `button` shows.
    void import(CommandButton& button, const std::string& contents);

    /// The texts of the messages since the last call.
    std::vector<std::string> told();
    /// The positions and bytes of the handlers' writes so far, empty ones left out.
    std::vector<Write> log;
    /// The error of the next flush, 0 for none.
    int flush_failure = 0;

    Disc disc;
    FakePlatform platform;
    TemporaryHome home;
    Editor editor;
    frmKalco& form = editor.form;

    // How often the routines of other folders ran.
    int NAMES_GIOC_NAZ = 0;
    int NAME_NO_CONTACT = 0;
    int CONTR_NAME_NC = 0;

private:
    void written(ImagePos position, std::string_view bytes) override;
};

/// Runs the steps again and again with the write of the first, second, ... changed sector failing: each time the error
/// is told, the image stays as it was, and no message of success is shown. The handlers make `least_writes` writes.
void expect_every_failing_write_to_stop(const std::function<void(EditorRun&)>& prepare,
                                        const std::function<void(EditorRun&)>& save, std::size_t least_writes);

}  // namespace kalco::test
