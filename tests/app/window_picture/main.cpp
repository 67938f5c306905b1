// window_picture IMAGE OUT.png [TAB] [dark] [unsaved] [dropped] [pending] [lost] [search] [menu MENU ITEM]: a picture
// of the window, or of the tool that the item opens, or of the search for players that compares two, with a team chosen
// on the tab, with something changed on it, with that dropped, with an import that waits, with the path lost in a
// cancelled dialog. An image that is not there gives the window without one.

#include <QApplication>
#include <QPixmap>
#include <iostream>

#include "app/support/dialogs.h"
#include "app/support/search.h"
#include "app/support/test_window.h"
#include "editor/window/user.h"

namespace {

using namespace kalco;

void choose_something(frmKalco& form) {
    constexpr int italy = 10;
    switch (form.SSTab1.tab()) {
        case tab::players:
            user::pick(form, form.cboSeqSQ, italy);
            user::pick(form, form.listDat, 9);
            break;
        case tab::league:
            user::pick(form, form.listDefault, 2);
            user::pick(form, form.listSQLink, italy);
            user::pick(form, form.cboSqNC, 4);
            for (const int row : {1, 5, 6}) user::double_click(form, form.listNC, row);
            break;
        case tab::kickers: user::pick(form, form.cboSquadra, italy); break;
        case tab::formations:
            user::pick(form, form.cboSeqSQ2, italy);
            user::click(form, form.lblGioc(8));
            user::click(form, form.cmdPiu(2));
            break;
        case tab::numbers:
            user::pick(form, form.cboSQNum, italy);
            user::pick(form, form.ListName, 7);
            break;
        default: break;
    }
}

/// Something that is not saved, where the tab has such a thing.
void change_something(frmKalco& form) {
    switch (form.SSTab1.tab()) {
        case tab::players:
            user::type(form, form.txtSqShort, "ITL");
            user::pick(form, form.cboVel, 7);
            user::type(form, form.txtEta, "33");
            break;
        case tab::league:
            for (int row = 10; row < 60 && form.listNC.enabled(); ++row) user::double_click(form, form.listNC, row);
            user::double_click(form, form.listAppNameNC, 4);
            break;
        case tab::kickers:
            user::click(form, form.opRIG(6));
            user::pick(form, form.listAtt, 14);
            break;
        case tab::transfers: user::click(form, form.cmdTransfer); break;
        case tab::formations:
            user::click(form, form.lblGioc(8));
            for (int i = 0; i < 4; ++i) user::click(form, form.cmdUp);
            break;
        case tab::numbers:
            user::type(form, form.txtNumMod, "31");
            user::click(form, form.cmdModNum);
            break;
        default: break;
    }
}

void drop_it(frmKalco& form) {
    if (form.SSTab1.tab() == tab::players) return static_cast<void>(user::pick(form, form.listDat, 4));
    const int tab = form.SSTab1.tab();
    user::select_tab(form, tab == tab::transfers ? tab::players : tab::transfers);
    user::select_tab(form, tab);
}

/// The numbers of one team are prepared, and those of another are shown.
void show_other_numbers(frmKalco& form) {
    user::pick(form, form.cboSQNum, 3);
    user::pick(form, form.ListName, 2);
}

/// Two exported teams for the transfers.
void open_two_files(test::TestWindow& test) {
    frmKalco& form = test.form();
    for (const int team : {10, 29}) {
        user::pick(form, form.cboSeqSQ, team);
        test.platform.choices.push_back(test.platform.home + "/Export/" + form.txtSQ.text() + ".DAT");
        user::click(form, form.cmdExp);
    }
    user::select_tab(form, tab::transfers);
    user::click(form, form.cmdTeam1);
    user::click(form, form.cmdteam2);
    user::pick(form, form.ListVende, 9);
    user::pick(form, form.ListCompra, 3);
}

/// The team that is chosen is exported and comes back, not yet saved.
void import_something(test::TestWindow& test) {
    frmKalco& form = test.form();
    const std::string file = test.platform.home + "/Export/" + form.txtSQ.text() + ".DAT";
    test.window.binder().act([&] {
        user::click(form, form.cmdExp);
        test.platform.choices.push_back(file);
        user::click(form, form.cmdImp);
    });
}

QPixmap picture_of_search(test::TestWindow& test) {
    const test::Search search(test);
    search.pick("comboRole", 8);
    search.pick("comboSkill_1", 5);
    search.pick("comboLeast_1", 3);
    search.sort_by(app::player_column::first_skill);
    for (const std::size_t place : {0U, 2U}) search.tick(search.players().at(place));
    search.type_name(QStringLiteral("a"));
    // The portraits come a few at a time.
    for (int frame = 0; frame < 20; ++frame) QApplication::processEvents();
    return search.window().grab();
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::cerr << "window_picture IMAGE OUT.png [TAB] [dark] [unsaved] [dropped] [pending] [lost] [search] "
                     "[menu MENU ITEM]\n";
        return 2;
    }
    const auto wanted = [&arguments](const char* word) { return arguments.contains(QString::fromLatin1(word)); };
    test::prepare_application(wanted("dark"));
    test::TestWindow test(arguments[1].toStdString());
    const int tab = arguments.value(3).toInt();
    if (test.form().image.is_open()) {
        test.window.binder().act([&] {
            if (tab == tab::transfers) return open_two_files(test);
            user::select_tab(test.form(), tab);
            choose_something(test.form());
        });
        if (wanted("unsaved")) {
            test.window.binder().act([&] { change_something(test.form()); });
            if (tab == tab::numbers) test.window.binder().act([&] { show_other_numbers(test.form()); });
        }
        if (wanted("dropped")) test.window.binder().act([&] { drop_it(test.form()); });
        if (wanted("pending")) import_something(test);
        if (wanted("lost")) {
            test.platform.choices.push_back("");
            test.click(test.form().cmdOpen);
        }
    }
    QApplication::processEvents();
    if (wanted("search")) return picture_of_search(test).save(arguments[2]) ? 0 : 1;
    QWidget* shown = &test.window;
    if (const qsizetype menu = arguments.indexOf(QStringLiteral("menu")); menu > 0) {
        test::choose_menu(test.window, arguments.value(menu + 1), arguments.value(menu + 2));
        QApplication::processEvents();
        for (QWidget* const top : QApplication::topLevelWidgets()) {
            if (top->isVisible() && top != &test.window) shown = top;
        }
    }
    return shown->grab().save(arguments[2]) ? 0 : 1;
}
