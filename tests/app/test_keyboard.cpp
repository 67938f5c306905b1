#include <QApplication>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/pitch_view.h"
#include "editor/window/user.h"

using namespace kalco;

/// The work of every tab with the keyboard alone.
class TestKeyboard : public QObject {
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

    void a_player_is_renamed_and_saved() {
        alt(Qt::Key_Q);
        press(Qt::Key_Down, 4);
        QCOMPARE(form().cboSeqSQ.row(), 3);
        go_to(form().listDat);
        press(Qt::Key_Down, 2);
        go_to(form().txtName);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ROSSI"));
        go_to(form().cboVel);
        press(Qt::Key_End);
        go_to(form().cmdSaveCar);
        press(Qt::Key_Space);
        QCOMPARE(last_message(), std::string("Salvataggio effettuato con successo"));
        QCOMPARE(form().listDat.item(2), std::string("Rossi"));
        QCOMPARE(form().cboVel.text(), std::string("19"));
        QVERIFY(home_->image_bytes().find("Rossi") != std::string::npos);
    }

    void a_club_is_linked() {
        alt(Qt::Key_L);
        go_to(form().listDefault);
        press(Qt::Key_Down, 3);
        go_to(form().listSQLink);
        press(Qt::Key_Down, 11);
        go_to(form().cmdLink);
        press(Qt::Key_Return);
        QCOMPARE(form().listDefault.row(), 2);
        QCOMPARE(form().listSQLink.row(), 10);
        QCOMPARE(last_message(), std::string("Salvataggio effettuato con successo"));
    }

    void set_pieces_are_chosen_and_saved() {
        alt(Qt::Key_K);
        go_to(form().cboSquadra);
        press(Qt::Key_Down, 2);
        t_->binder().act([this] { user::click(form(), form().opRIG(0)); });
        press(Qt::Key_Down, 5);
        QVERIFY(form().opRIG(5).value());
        press(Qt::Key_Tab);
        QCOMPARE(form().focused()->frame(), static_cast<const Frame*>(&form().fraCAP));
        press(Qt::Key_Up, 11);
        QVERIFY(form().opCAP(0).value());
        alt(Qt::Key_S);
        QCOMPARE(last_message(), std::string("Salvataggio effettuato con successo"));
        go_to(form().cboSquadra);
        press(Qt::Key_Up);
        press(Qt::Key_Down);
        QVERIFY(form().opRIG(5).value() && form().opCAP(0).value());
    }

    void two_players_are_swapped_between_files() {
        for (const int team : {3, 4}) {
            t_->binder().act([this, team] { user::pick(form(), form().cboSeqSQ, team); });
            t_->platform.choices.push_back(home_->path() + "/Export/" + form().txtSQ.text() + ".DAT");
            go_to(form().cmdExp);
            press(Qt::Key_Space);
        }
        go_to(form().SSTab1);
        press(Qt::Key_Right, 3);
        QCOMPARE(form().SSTab1.tab(), tab::transfers);
        go_to(form().cmdTeam1);
        press(Qt::Key_Return);
        go_to(form().cmdteam2);
        press(Qt::Key_Return);
        go_to(form().ListVende);
        press(Qt::Key_Down);
        go_to(form().ListCompra);
        press(Qt::Key_Down, 2);
        const std::string sold = form().ListVende.item(0);
        const std::string bought = form().ListCompra.item(1);
        go_to(form().OpNREC);
        press(Qt::Key_Down);
        QVERIFY(form().OpRec.value());
        go_to(form().cmdTransfer);
        press(Qt::Key_Space);
        QCOMPARE(form().ListVende.item(0), bought);
        QCOMPARE(form().ListCompra.item(1), sold);
        t_->platform.messages.clear();
        alt(Qt::Key_2);
        QCOMPARE(last_message(), std::string("File creato con successo"));
    }

    void a_formation_is_changed_and_saved() {
        alt(Qt::Key_F);
        go_to(form().cboSeqSQ2);
        press(Qt::Key_Down, 5);
        auto* const pitch = t_->window.findChild<app::PitchView*>(QStringLiteral("viewPitch"));
        while (!pitch->hasFocus()) press(Qt::Key_Tab);
        press(Qt::Key_PageDown, 3);
        QCOMPARE(form().SelectedMarker, 4);
        press(Qt::Key_PageUp);
        QCOMPARE(form().SelectedMarker, 3);
        QVERIFY(form().lblGioc(3).selected() && pitch->hasFocus());
        const int x = form().FormationX[3];
        press(Qt::Key_Right, 2);
        QCOMPARE(form().FormationX[3], x + 2);
        alt(Qt::Key_M);
        QCOMPARE(last_message(), std::string("Salvataggio effettuato con successo"));
        go_to(form().cboSeqSQ2);
        press(Qt::Key_Down);
        press(Qt::Key_Up);
        QCOMPARE(form().FormationX[3], x + 2);
    }

    void a_number_is_changed_and_saved() {
        go_to(form().SSTab1);
        press(Qt::Key_Left);
        press(Qt::Key_Right, 5);
        QCOMPARE(form().SSTab1.tab(), tab::numbers);
        alt(Qt::Key_Q);
        press(Qt::Key_Down, 5);
        go_to(form().ListName);
        press(Qt::Key_Down);
        QCOMPARE(form().focused(), static_cast<Control*>(&form().txtNumMod));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("32"));
        press(Qt::Key_Return);
        go_to(form().cmdSaveNum);
        press(Qt::Key_Space);
        QCOMPARE(last_message(), std::string("Salvataggio effettuato con successo"));
        go_to(form().cboSQNum);
        press(Qt::Key_Down);
        press(Qt::Key_Up);
        QCOMPARE(form().ListNum.item(0), std::string("32"));
    }

private:
    frmKalco& form() { return t_->form(); }

    void press(Qt::Key key, int times = 1) {
        for (int i = 0; i < times; ++i) t_->key(key);
    }

    void alt(Qt::Key key) {
        QTest::keyClick(&t_->window, key, Qt::AltModifier);
        QApplication::processEvents();
    }

    /// Presses the tab key until the control has the focus.
    void go_to(const Control& control) {
        constexpr int more_than_any_tab = 150;
        for (int i = 0; i < more_than_any_tab && form().focused() != &control; ++i) t_->key(Qt::Key_Tab);
        QCOMPARE(form().focused(), const_cast<Control*>(&control));
    }

    std::string last_message() const {
        return t_->platform.messages.empty() ? std::string() : t_->platform.messages.back().text;
    }

    std::unique_ptr<test::DemoHome> home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestKeyboard)
#include "test_keyboard.moc"
