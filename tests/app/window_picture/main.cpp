// window_picture IMAGE OUT.png [TAB] [dark]: a picture of the window with a team chosen on the tab.

#include <QApplication>
#include <QPixmap>
#include <iostream>

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

}  // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::cerr << "window_picture IMAGE OUT.png [TAB] [dark]\n";
        return 2;
    }
    test::prepare_application(arguments.contains(QStringLiteral("dark")));
    test::TestWindow test(arguments[1].toStdString());
    const int tab = arguments.value(3).toInt();
    test.window.binder().act([&] {
        if (tab == tab::transfers) return open_two_files(test);
        user::select_tab(test.form(), tab);
        choose_something(test.form());
    });
    QApplication::processEvents();
    return test.window.grab().save(arguments[2]) ? 0 : 1;
}
