#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "app/status_line.h"
#include "app/style.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "editor/window/user.h"

using namespace kalco;

/// What is typed and not saved: its marks, what tells that it was dropped, and how it comes back.
class TestDrafts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        home_ = std::make_unique<test::DemoHome>();
        t_ = std::make_unique<test::TestWindow>(*home_);
    }
    void cleanup() {
        QVERIFY(t_->failure == nullptr);
        t_.reset();
        home_.reset();
    }

    void a_changed_field_of_the_player_is_marked_until_it_is_saved() {
        choose_player(10, 3);
        QVERIFY(mark("viewUnsavedPlayer").isEmpty());
        const std::string before = form().cboVel.text();
        pick(form().cboVel, before == "19" ? 0 : 7);
        QCOMPARE(mark("viewUnsavedPlayer"), QStringLiteral("● non salvato"));
        QVERIFY(app::is_marked_unsaved(t_->widget(form().cboVel)));
        QVERIFY(!app::is_marked_unsaved(t_->widget(form().cboAcc)));
        QVERIFY(t_->widget(form().cboVel).toolTip().endsWith(QStringLiteral("Era: ") + QString::fromStdString(before)));
        t_->click(form().cmdSaveCar);
        QVERIFY(mark("viewUnsavedPlayer").isEmpty());
        QVERIFY(!app::is_marked_unsaved(t_->widget(form().cboVel)));
        QVERIFY(!t_->widget(form().cboVel).toolTip().contains(QStringLiteral("Era")));
        QVERIFY(status().startsWith(QStringLiteral("Salvato: giocatore Italy, ")));
        QVERIFY(!resume_button().isVisible());
    }

    void a_field_that_is_typed_back_is_not_marked() {
        choose_player(10, 3);
        const QString name = edit(form().txtName).text();
        t_->type(form().txtName, QStringLiteral("Qwerty"));
        QVERIFY(!mark("viewUnsavedPlayer").isEmpty());
        t_->type(form().txtName, name);
        QVERIFY(mark("viewUnsavedPlayer").isEmpty());
        QVERIFY(status().isEmpty());
    }

    void another_player_drops_the_changes_and_resuming_types_them_again() {
        choose_player(10, 3);
        const QString player = edit(form().txtName).text();
        const QString speed = QString::fromStdString(form().cboVel.text());
        const int row = speed == QStringLiteral("19") ? 0 : 7;
        pick(form().cboVel, row);
        const std::string wanted = form().cboVel.text();
        t_->type(form().txtEta, QStringLiteral("33"));
        t_->pick_row(form().listDat, 4);
        QVERIFY(status().startsWith(QStringLiteral("Modifiche a %1 non salvate: ").arg(player)));
        QVERIFY(status().contains(QStringLiteral("velocità %1→%2").arg(speed, QString::fromStdString(wanted))));
        QVERIFY(status().contains(QStringLiteral("→33")));
        QVERIFY(mark("viewUnsavedPlayer").isEmpty());

        resume();
        QCOMPARE(form().listDat.row(), 3);
        QCOMPARE(form().cboVel.text(), wanted);
        QCOMPARE(form().txtEta.text(), std::string("33"));
        QVERIFY(!mark("viewUnsavedPlayer").isEmpty());
        QVERIFY(status().isEmpty());
        QVERIFY(!resume_button().isVisible());
    }

    void another_team_drops_names_and_player_and_both_come_back() {
        choose_player(10, 3);
        t_->type(form().txtSqShort, QStringLiteral("ITL"));
        QVERIFY(!mark("viewUnsavedNames").isEmpty());
        QVERIFY(app::is_marked_unsaved(t_->widget(form().txtSqShort)));
        t_->type(form().txtName, QStringLiteral("Qwerty"));
        pick(form().cboSeqSQ, 11);
        QVERIFY(status().contains(QStringLiteral("Nomi di Italy non salvati: sigla ITA→ITL")));
        QVERIFY(status().contains(QStringLiteral("→Qwerty")));
        resume();
        QCOMPARE(form().cboSeqSQ.row(), 10);
        QCOMPARE(form().listDat.row(), 3);
        QCOMPARE(form().txtSqShort.text(), std::string("ITL"));
        QCOMPARE(form().txtName.text(), std::string("Qwerty"));
    }

    void saved_names_are_not_told_as_dropped() {
        choose_player(10, 0);
        t_->type(form().txtSqShort, QStringLiteral("ITL"));
        t_->click(form().cmdName);
        QVERIFY(mark("viewUnsavedNames").isEmpty());
        pick(form().cboSeqSQ, 11);
        QVERIFY(!status().contains(QStringLiteral("non salvati")));
    }

    void names_that_the_save_of_a_player_reads_again_are_told() {
        choose_player(10, 3);
        t_->type(form().txtSqShort, QStringLiteral("ITL"));
        pick(form().cboVel, form().cboVel.row() == 2 ? 0 : 2);
        t_->click(form().cmdSaveCar);
        QVERIFY(status().startsWith(QStringLiteral("Salvato: giocatore")));
        QVERIFY(status().endsWith(QStringLiteral("Nomi di Italy non salvati: sigla ITA→ITL")));
        resume();
        QCOMPARE(form().txtSqShort.text(), std::string("ITL"));
        QCOMPARE(form().listDat.row(), 3);
    }

    void new_drops_the_changes_too() {
        choose_player(10, 3);
        pick(form().cboVel, form().cboVel.row() == 7 ? 0 : 7);
        const std::string wanted = form().cboVel.text();
        t_->click(form().cmdNew);
        QVERIFY(status().contains(QStringLiteral("velocità")));
        resume();
        QCOMPARE(form().listDat.row(), 3);
        QCOMPARE(form().cboVel.text(), wanted);
    }

    void the_player_stays_while_another_tab_is_shown() {
        choose_player(10, 3);
        pick(form().cboVel, form().cboVel.row() == 7 ? 0 : 7);
        t_->select_tab(tab::kickers);
        t_->select_tab(tab::players);
        QVERIFY(!mark("viewUnsavedPlayer").isEmpty());
        QVERIFY(status().isEmpty());
    }

    void set_pieces_are_marked_dropped_and_resumed() {
        t_->select_tab(tab::kickers);
        pick(form().cboSquadra, 10);
        QVERIFY(mark("viewUnsavedTakers").isEmpty());
        const int taker = form().opRIG(5).value() ? 6 : 5;
        t_->click(form().opRIG(taker));
        QVERIFY(!mark("viewUnsavedTakers").isEmpty());
        t_->select_tab(tab::transfers);
        QVERIFY(status().startsWith(QStringLiteral("Tiratori di Italy non salvati: rigori ")));
        resume();
        QCOMPARE(form().SSTab1.tab(), tab::kickers);
        QCOMPARE(form().cboSquadra.row(), 10);
        QVERIFY(form().opRIG(taker).value());
        t_->click(form().cmdCrea);
        QVERIFY(mark("viewUnsavedTakers").isEmpty());
        t_->select_tab(tab::transfers);
        QVERIFY(status().startsWith(QStringLiteral("Salvato: calci piazzati Italy")));
    }

    void the_pitch_comes_back_with_places_roles_and_module() {
        t_->select_tab(tab::formations);
        pick(form().cboSeqSQ2, 10);
        pick(form().cboMod, 4);
        t_->click(form().lblGioc(5));
        for (int i = 0; i < 3; ++i) t_->click(form().cmdRight);
        t_->click(form().cmdUp);
        pick(form().cboRL, 3);
        const auto x = form().FormationX;
        const auto y = form().FormationY;
        const std::string role = form().lblGioc(5).caption();
        QVERIFY(!mark("viewUnsavedPitch").isEmpty());
        pick(form().cboSeqSQ2, 11);
        QVERIFY(status().startsWith(QStringLiteral("Formazione di Italy non salvata: ")));
        QVERIFY(mark("viewUnsavedPitch").isEmpty());
        resume();
        QCOMPARE(form().cboSeqSQ2.row(), 10);
        QVERIFY(form().FormationX == x && form().FormationY == y);
        QCOMPARE(form().lblGioc(5).caption(), role);
    }

    void leaving_the_pitch_tells_it_once() {
        t_->select_tab(tab::formations);
        pick(form().cboSeqSQ2, 10);
        t_->click(form().lblGioc(5));
        t_->click(form().cmdUp);
        t_->select_tab(tab::players);
        QVERIFY(status().startsWith(QStringLiteral("Formazione di Italy non salvata: posto del 5 ")));
        resume();
        QCOMPARE(form().SSTab1.tab(), tab::formations);
        t_->click(form().cmdModifica);
        QVERIFY(mark("viewUnsavedPitch").isEmpty());
        t_->select_tab(tab::players);
        QVERIFY(status().startsWith(QStringLiteral("Salvato: formazione Italy")));
    }

    void bars_wait_for_their_team_and_are_dropped_by_the_save_of_another() {
        t_->select_tab(tab::formations);
        pick(form().cboSeqSQ2, 3);
        step_bar(2);
        const int wanted = form().pbFZ(2).value();
        QCOMPARE(mark("viewUnsavedBars"), QStringLiteral("● non salvato"));
        pick(form().cboSeqSQ2, 4);
        QCOMPARE(mark("viewUnsavedBars"), QStringLiteral("● non salvato: England"));
        QVERIFY(status().isEmpty());
        step_bar(1);
        t_->click(form().cmdSalva);
        QVERIFY(status().contains(QStringLiteral("Barre di England non salvate: Defense ")));
        QVERIFY(!status().contains(QStringLiteral("Offense")));
        QVERIFY(mark("viewUnsavedBars").isEmpty());
        resume();
        QCOMPARE(form().cboSeqSQ2.row(), 3);
        QCOMPARE(form().pbFZ(2).value(), wanted);
    }

    void numbers_are_dropped_and_resumed() {
        t_->select_tab(tab::numbers);
        pick(form().cboSQNum, 10);
        t_->pick_row(form().ListName, 4);
        t_->type(form().txtNumMod, QStringLiteral("31"));
        t_->click(form().cmdModNum);
        t_->pick_row(form().ListName, 0);
        t_->type(form().txtNumMod, QString::fromStdString(form().ListNum.item(1)));
        t_->click(form().cmdModNum);
        const std::vector<std::string> wanted = form().ListNum.items();
        QVERIFY(!mark("viewUnsavedNumbers").isEmpty());
        pick(form().cboSQNum, 11);
        QVERIFY(status().startsWith(QStringLiteral("Numeri di Italy non salvati: ")));
        resume();
        QCOMPARE(form().cboSQNum.row(), 10);
        QVERIFY(form().ListNum.items() == wanted);
    }

    void the_exchanges_in_a_file_are_marked_dropped_and_resumed() {
        open_two_files();
        t_->pick_row(form().ListVende, 9);
        t_->pick_row(form().ListCompra, 3);
        QVERIFY(mark("viewUnsavedFile2").isEmpty());
        t_->click(form().cmdTransfer);
        QVERIFY(mark("viewUnsavedFile1").isEmpty());
        QCOMPARE(mark("viewUnsavedFile2"), QStringLiteral("● non salvato"));
        const std::vector<std::string> lines = form().listTras2.items();
        t_->platform.choices.push_back("");
        t_->click(form().cmdteam2);
        QVERIFY(form().listTras2.items().empty());
        QVERIFY(status().contains(QStringLiteral("non salvati: posto 4 ")));
        resume();
        QVERIFY(form().listTras2.items() == lines);
        QCOMPARE(form().ListCompra.count(), 23);
        QCOMPARE(mark("viewUnsavedFile2"), QStringLiteral("● non salvato"));
        t_->click(form().cmdSave2);
        QVERIFY(mark("viewUnsavedFile2").isEmpty());
    }

    void an_import_that_was_saved_instead_of_the_fields_tells_them() {
        choose_player(10, 3);
        t_->platform.choices.push_back("");
        t_->click(form().cmdImp);
        pick(form().cboVel, form().cboVel.row() == 7 ? 0 : 7);
        QVERIFY(!mark("viewUnsavedPlayer").isEmpty());
        t_->click(form().cmdSaveCar);
        QVERIFY(status().contains(QStringLiteral("velocità")));
    }

    void a_cancelled_change_of_image_drops_nothing() {
        choose_player(10, 3);
        t_->type(form().txtSqShort, QStringLiteral("ITL"));
        pick(form().cboVel, form().cboVel.row() == 7 ? 0 : 7);
        t_->platform.choices.push_back("");
        t_->click(form().cmdOpen);
        QVERIFY(status().isEmpty());
        QVERIFY(!resume_button().isVisible());
        QVERIFY(!mark("viewUnsavedPlayer").isEmpty() && !mark("viewUnsavedNames").isEmpty());
    }

    void another_image_has_nothing_to_resume() {
        const test::DemoHome other;
        choose_player(10, 3);
        pick(form().cboVel, form().cboVel.row() == 7 ? 0 : 7);
        t_->platform.choices.push_back(other.image());
        t_->click(form().cmdOpen);
        QVERIFY(status().contains(QStringLiteral("velocità")));
        QVERIFY(!resume_button().isVisible());
    }

    void reading_the_player_again_brings_the_fields_back() {
        choose_player(10, 3);
        const std::string speed = form().cboVel.text();
        const std::string cost = form().txtML.text();
        pick(form().cboVel, form().cboVel.row() == 7 ? 0 : 7);
        // A wrong cost keeps the focus; it must not keep the player too.
        t_->type(form().txtML, QStringLiteral("251"));
        auto& restore = *t_->window.findChild<QPushButton*>(QStringLiteral("viewRestore"));
        QTest::mouseClick(&restore, Qt::LeftButton);
        QCOMPARE(form().cboVel.text(), speed);
        QCOMPARE(form().txtML.text(), cost);
        QVERIFY(t_->platform.messages.empty());
        QVERIFY(mark("viewUnsavedPlayer").isEmpty());
        QVERIFY(status().contains(QStringLiteral("velocità")));
        pick(form().cboSeqSQ, 70);
        QVERIFY(!restore.isEnabled());
    }

private:
    frmKalco& form() { return t_->form(); }
    QLineEdit& edit(const TextBox& box) { return t_->widget<QLineEdit>(box); }
    QString mark(const char* name) { return t_->window.findChild<QLabel*>(QString::fromLatin1(name))->text(); }
    QString status() { return t_->window.findChild<app::StatusLine*>()->text(); }
    QPushButton& resume_button() { return *t_->window.findChild<QPushButton*>(QStringLiteral("viewResume")); }

    void resume() {
        QVERIFY(resume_button().isVisible());
        QTest::mouseClick(&resume_button(), Qt::LeftButton);
        QApplication::processEvents();
    }

    void pick(Control& control, int row) {
        t_->binder().act([&] { user::pick(form(), control, row); });
    }

    void choose_player(int team, int row) {
        pick(form().cboSeqSQ, team);
        t_->pick_row(form().listDat, row);
    }

    void step_bar(int bar) {
        t_->click(form().pbFZ(bar).value() < StrengthBar::most ? form().cmdPiu(bar) : form().cmdMeno(bar));
    }

    void open_two_files() {
        for (const int team : {10, 29}) {
            pick(form().cboSeqSQ, team);
            t_->platform.choices.push_back(home_->path() + "/Export/" + form().txtSQ.text() + ".DAT");
            t_->click(form().cmdExp);
        }
        t_->select_tab(tab::transfers);
        t_->click(form().cmdTeam1);
        t_->click(form().cmdteam2);
    }

    std::unique_ptr<test::DemoHome> home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestDrafts)
#include "test_drafts.moc"
