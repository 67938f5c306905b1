#pragma once

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "disc/bars.h"
#include "disc/formation.h"
#include "editor/editor.h"
#include "editor/formations/bars.h"
#include "editor/window/user.h"
#include "support/fake_platform.h"
#include "support/memory_storage.h"

namespace kalco::fuzzing {

/// Ends the run when something that must hold does not.
inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

/// The editor with its fifth tab open, on an image in memory that each run finds as the first one did. Only the
/// stretch around formations and bars is kept and compared: nothing else of the image is ever written there.
class FormationDesk {
public:
    FormationDesk() : editor(platform, test::opener_of(disc)) {
        disc.bytes.assign(static_cast<std::size_t>(end), '\5');
        home = std::filesystem::temp_directory_path() / ("kalco-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(home);
        platform.home = home.string();
        platform.choices.emplace_back("disc.bin");
        user::start(form);
        user::select_tab(form, tab::formations);
    }
    ~FormationDesk() {
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }
    FormationDesk(const FormationDesk&) = delete;
    FormationDesk& operator=(const FormationDesk&) = delete;

    /// The tables as they were, the list of bars read again.
    void begin() {
        disc.bytes.resize(static_cast<std::size_t>(end));
        disc.bytes.replace(start, std::string::npos, static_cast<std::size_t>(end) - start, '\5');
        form.listApp2.clear();
        form.slots.Read_Bar();
        platform.messages.clear();
        platform.dialogs.clear();
        platform.answers.clear();
        platform.choices.clear();
    }

    std::string tables() const { return disc.bytes.substr(start); }
    static std::size_t place(ImagePos position) { return static_cast<std::size_t>(position - 1) - start; }
    void click(Control& control) { user::click(form, control); }

    test::Disc disc;
    test::FakePlatform platform;
    std::filesystem::path home;
    Editor editor;
    frmKalco& form = editor.form;

private:
    static constexpr std::size_t start = 2303000;
    static constexpr ImagePos end = 2330000;
};

}  // namespace kalco::fuzzing
