#include "support/every_save.h"

#include <cstdio>

#include "support/team_files.h"

namespace kalco::test {
namespace {

std::string rising_numbers(int first, int count = 23) {
    std::string line;
    for (int k = 0; k < count; ++k) line += std::to_string(100 + first + k).substr(1);
    return line;
}

EverySave team_names(int team) {
    return {"names of team " + std::to_string(team),
            [team](Desk& desk) {
                user::pick(desk.form, desk.form.cboSeqSQ, team);
                user::type(desk.form, desk.form.txtSqHEX, "Abcde");
                user::type(desk.form, desk.form.txtSqDec, "nuovo");
                user::type(desk.form, desk.form.txtSqShort, "nuo");
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdName); }};
}

EverySave player(int team, int row) {
    return {"player " + std::to_string(row) + " of team " + std::to_string(team),
            [team, row](Desk& desk) {
                user::pick(desk.form, desk.form.cboSeqSQ, team);
                user::pick(desk.form, desk.form.listDat, row);
                user::type(desk.form, desk.form.txtName, "Abcdefghij");
                user::pick(desk.form, desk.form.cboDifesa, desk.form.cboDifesa.row() == 7 ? 0 : 7);
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdSaveCar); }};
}

EverySave team_import(int team) {
    return {"import of team " + std::to_string(team),
            [team](Desk& desk) {
                user::pick(desk.form, desk.form.cboSeqSQ, team);
                desk.will_choose("a.DAT", team_file(95, 24));
                user::click(desk.form, team == 95 ? desk.form.cmdImpML : desk.form.cmdImp);
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdSaveCar); }};
}

void choose_formation(Desk& desk, int row) {
    user::select_tab(desk.form, tab::formations);
    user::pick(desk.form, desk.form.cboSeqSQ2, row);
}

EverySave formation(int row) {
    return {"formation " + std::to_string(row),
            [row](Desk& desk) {
                choose_formation(desk, row);
                user::pick(desk.form, desk.form.cboMod, 3);
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdModifica); }};
}

EverySave bars(int row) {
    return {"bars " + std::to_string(row),
            [row](Desk& desk) {
                choose_formation(desk, row);
                for (int bar = 1; bar <= 5; ++bar) {
                    const bool full = desk.form.pbFZ(bar).value() == 10;
                    user::click(desk.form, full ? desk.form.cmdMeno(bar) : desk.form.cmdPiu(bar));
                }
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdSalva); }};
}

EverySave bars_file(Answer answer, const std::string& name) {
    return {"import of " + name, [](Desk& desk) { choose_formation(desk, 32); },
            [answer](Desk& desk) {
                desk.will_choose("a.bfr", "0102030405" + std::string(20, '3') + std::string(40, '5'));
                desk.platform.answers.push_back(answer);
                user::click(desk.form, desk.form.cmdImport);
            }};
}

void choose_numbers(Desk& desk, int row) {
    user::select_tab(desk.form, tab::numbers);
    user::pick(desk.form, desk.form.cboSQNum, row);
}

EverySave numbers(int row) {
    return {"numbers " + std::to_string(row),
            [row](Desk& desk) {
                choose_numbers(desk, row);
                user::pick(desk.form, desk.form.ListName, 3);
                user::type(desk.form, desk.form.txtNumMod, desk.form.ListNum.item(3) == "31" ? "32" : "31");
                user::click(desk.form, desk.form.cmdModNum);
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdSaveNum); }};
}

EverySave numbers_import(int row, const std::string& name, const std::string& line) {
    return {"import of " + name, [row](Desk& desk) { choose_numbers(desk, row); },
            [line](Desk& desk) {
                desk.will_choose("a.num", line);
                user::click(desk.form, desk.form.cmdImpNum);
            },
            true};
}

EverySave stopping(EverySave save) {
    save.stops = true;
    return save;
}

void choose_kickers(Desk& desk, int row) {
    user::select_tab(desk.form, tab::kickers);
    user::pick(desk.form, desk.form.cboSquadra, row);
}

EverySave set_pieces(int row) {
    return {"set pieces " + std::to_string(row),
            [row](Desk& desk) {
                choose_kickers(desk, row);
                for (auto* column : {&desk.form.opCPC, &desk.form.opCAP}) {
                    user::click(desk.form, (*column)((*column)(9).value() ? 8 : 9));
                }
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdCrea); }};
}

EverySave kickers_import(const std::string& name, const std::string& line) {
    return {"import of " + name, [](Desk& desk) { choose_kickers(desk, 20); },
            [line](Desk& desk) {
                desk.will_choose("a.kcp", line);
                user::click(desk.form, desk.form.cmdImpKick);
            }};
}

EverySave link() {
    return {"link of a club",
            [](Desk& desk) {
                user::select_tab(desk.form, tab::league);
                user::pick(desk.form, desk.form.listDefault, 6);
                user::pick(desk.form, desk.form.listSQLink, 10);
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdLink); }};
}

EverySave pool_picks() {
    return {"23 of the pool",
            [](Desk& desk) {
                user::select_tab(desk.form, tab::league);
                user::pick(desk.form, desk.form.cboSqNC, 6);
                for (int row = 17; desk.form.listAppNameNC.count() < 23; row += 11) {
                    user::double_click(desk.form, desk.form.listNC, row);
                }
                desk.will_choose("a.DAT", team_file(12, 23));
                user::click(desk.form, desk.form.cmdImpNC);
                desk.platform.messages.clear();
            },
            [](Desk& desk) { user::click(desk.form, desk.form.cmdSaveNC); }};
}

/// A save of a player that is taken back, and made again.
EverySave travelled(bool again) {
    return {again ? "redo" : "undo",
            [again](Desk& desk) {
                const EverySave first = player(12, 5);
                first.prepare(desk);
                first.save(desk);
                if (again) user::undo(desk.form);
                desk.platform.messages.clear();
            },
            [again](Desk& desk) { again ? user::redo(desk.form) : user::undo(desk.form); }};
}

}  // namespace

const std::vector<EverySave>& every_save() {
    static const std::vector<EverySave> saves{
        team_names(10),
        team_names(4),
        team_names(94),
        player(12, 5),
        player(0, 0),
        player(95, 408),
        team_import(0),
        team_import(1),
        team_import(61),
        team_import(95),
        formation(12),
        formation(32),
        bars(12),
        bars(3),
        bars_file(Answer::yes, "formation and bars"),
        bars_file(Answer::no, "bars alone"),
        bars_file(Answer::cancel, "a formation alone"),
        numbers(3),
        numbers(40),
        numbers_import(12, "numbers", rising_numbers(10)),
        stopping(numbers_import(12, "numbers above 32", rising_numbers(22))),
        stopping(numbers_import(12, "too few numbers", rising_numbers(8, 12))),
        set_pieces(20),
        set_pieces(86),
        kickers_import("kickers", "0102030405060708"),
        kickers_import("a long line of kickers", std::string(9000, 'A')),
        link(),
        pool_picks(),
        travelled(false),
        travelled(true),
    };
    return saves;
}

void Tally::print(const char* what) const {
    std::printf("%s: %d faults at %d calls, %d times the old image, %d times the new one\n", what, faults, calls,
                old_images, new_images);
}

}  // namespace kalco::test
