#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/every_save.h"
#include "support/team_files.h"

namespace kalco::test {

/// What a user does who presses anything that can be pressed, in an order that `next` decides. Another image is not
/// opened. RuntimeErrors leave it as they leave any action.
class RandomStory {
public:
    /// Gives any number; the story is the same for the same numbers.
    using Next = std::function<unsigned()>;

    RandomStory(Desk& desk, Next next) : desk_(desk), next_(std::move(next)) {
        const std::string numbers = "2322212019181716151413121110090807060504030201";
        side_files_ = {desk_.home.write("24.DAT", team_file(95, 24)),
                       desk_.home.write("23.DAT", team_file(12, 23)),
                       desk_.home.write("a.num", numbers),
                       desk_.home.write("short.num", numbers.substr(0, 20)),
                       desk_.home.write("33.num", "0133" + numbers),
                       desk_.home.write("a.bfr", "0102030405" + std::string(20, '3') + std::string(40, '5')),
                       desk_.home.write("a.kcp", "00010203040A"),
                       desk_.home.path("missing"),
                       ""};
    }

    void act() {
        desk_.platform.choices = {side_files_[next_() % side_files_.size()]};
        desk_.platform.answers = {std::vector{Answer::yes, Answer::no, Answer::cancel}[next_() % 3]};
        desk_.platform.messages.clear();
        if (next_() % 16 == 0) {
            user::select_tab(desk_.form, static_cast<int>(next_() % 6));
        } else if (Control* const control = any_control()) {
            use(*control);
        }
    }

private:
    Control* any_control() {
        const auto& all = desk_.form.registry.all();
        for (int attempt = 0; attempt < 30; ++attempt) {
            Control* const control = all[next_() % all.size()];
            if (control != &desk_.form.cmdOpen && user::reach(desk_.form, *control) == user::Outcome::done) {
                return control;
            }
        }
        return nullptr;
    }
    void use(Control& control) {
        switch (control.kind()) {
            case Kind::combo_box: return pick(control, static_cast<ComboBox&>(control).items().size());
            case Kind::list_box: return pick(control, static_cast<std::size_t>(static_cast<ListBox&>(control).count()));
            case Kind::text_box: {
                const std::vector<std::string> texts{"Abc", "x", "7", "31", "", "Nuovo Nome", "200"};
                user::type(desk_.form, static_cast<TextBox&>(control), texts[next_() % texts.size()]);
                return;
            }
            default: user::click(desk_.form, control);
        }
    }
    void pick(Control& control, std::size_t rows) {
        if (rows == 0) return;
        const int row = static_cast<int>(next_() % rows);
        if (next_() % 2 == 0) {
            user::pick(desk_.form, control, row);
        } else {
            user::double_click(desk_.form, control, row);
        }
    }

    Desk& desk_;
    Next next_;
    std::vector<std::string> side_files_;
};

}  // namespace kalco::test
