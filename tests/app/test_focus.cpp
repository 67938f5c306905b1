#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/pick_combo.h"
#include "editor/window/user.h"

using namespace kalco;

/// The window's focus is the model's, and one input is one action.
class TestFocus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        home_ = std::make_unique<test::DemoHome>();
        t_ = std::make_unique<test::TestWindow>(*home_);
        t_->binder().act([this] { user::pick(form(), form().cboSeqSQ, 10); });
    }

    void cleanup() {
        t_.reset();
        home_.reset();
    }

    void the_press_of_save_packs_the_fields_first() {
        t_->pick_row(form().listDat, 3);
        const std::string before = form().Text2.text();
        t_->binder().act([this] { user::pick(form(), form().cboVel, 7); });
        QCOMPARE(form().Text2.text(), before);
        t_->click(form().cmdSaveCar);
        QCOMPARE(t_->platform.messages.size(), 1U);
        QCOMPARE(t_->platform.messages[0].text, std::string("Salvataggio effettuato con successo"));
        t_->pick_row(form().listDat, 3);
        QCOMPARE(form().cboVel.text(), std::string("19"));
    }

    void a_second_press_with_the_focus_kept_does_not_pack_again() {
        int packings = 0;
        const Event original = form().cmdSaveCar.got_focus;
        form().cmdSaveCar.got_focus = [&] {
            ++packings;
            original();
        };
        t_->click(form().cmdSaveCar);
        QCOMPARE(packings, 1);
        QVERIFY(t_->widget(form().cmdSaveCar).hasFocus());
        t_->click(form().cmdSaveCar);
        QCOMPARE(packings, 1);
        QCOMPARE(t_->platform.messages.size(), 2U);
    }

    void a_cost_above_the_limit_is_told_once_and_stops_the_press() {
        const std::string image = home_->image_bytes();
        for (const Control* target :
             {static_cast<Control*>(&form().cmdSaveCar), static_cast<Control*>(&form().cmdAddH)}) {
            t_->platform.messages.clear();
            t_->type(form().txtML, QStringLiteral("251"));
            const std::string height = form().txtAlt.text();
            t_->click(*target);
            QCOMPARE(t_->platform.messages.size(), 1U);
            QVERIFY(t_->widget(form().txtML).hasFocus());
            QCOMPARE(form().focused(), static_cast<Control*>(&form().txtML));
            QCOMPARE(form().txtAlt.text(), height);
        }
        QCOMPARE(home_->image_bytes(), image);
    }

    void a_cost_above_the_limit_stops_the_tab_key_and_another_field() {
        t_->type(form().txtML, QStringLiteral("999"));
        t_->key(Qt::Key_Tab);
        QCOMPARE(t_->platform.messages.size(), 1U);
        QVERIFY(t_->widget(form().txtML).hasFocus());
        t_->click(form().txtName);
        QCOMPARE(t_->platform.messages.size(), 2U);
        QVERIFY(t_->widget(form().txtML).hasFocus());
    }

    void a_cost_above_the_limit_stops_the_change_of_tab() {
        t_->type(form().txtML, QStringLiteral("999"));
        t_->select_tab(tab::formations);
        QCOMPARE(t_->platform.messages.size(), 1U);
        QCOMPARE(form().SSTab1.tab(), tab::players);
        QCOMPARE(t_->widget<QTabWidget>(form().SSTab1).currentIndex(), tab::players);
        QVERIFY(t_->widget(form().txtML).hasFocus());
    }

    void a_cost_above_the_limit_stops_a_pick_and_the_list_shows_the_old_row() {
        t_->type(form().txtML, QStringLiteral("999"));
        t_->pick_row(form().listDat, 5);
        QCOMPARE(t_->platform.messages.size(), 1U);
        QCOMPARE(form().listDat.row(), 0);
        QCOMPARE(t_->widget<QAbstractItemView>(form().listDat).currentIndex().row(), 0);
        auto& combo = t_->widget<app::PickCombo>(form().cboVel);
        const int row = combo.currentIndex();
        combo.setFocus(Qt::TabFocusReason);
        QCOMPARE(t_->platform.messages.size(), 2U);
        QVERIFY(!combo.hasFocus());
        QCOMPARE(combo.currentIndex(), row);
    }

    void the_name_gets_its_capitals_when_the_tab_key_leaves_it() {
        t_->type(form().txtName, QStringLiteral("DE ROSSI"));
        QCOMPARE(form().txtName.text(), std::string("DE ROSSI"));
        t_->key(Qt::Key_Tab);
        QCOMPARE(form().txtName.text(), std::string("De Rossi"));
        QCOMPARE(t_->widget<QLineEdit>(form().txtName).text(), QStringLiteral("De Rossi"));
    }

    void a_control_that_its_own_handler_disables_keeps_the_models_focus() {
        t_->select_tab(tab::formations);
        t_->binder().act([this] { user::pick(form(), form().cboSeqSQ2, 3); });
        t_->click(form().lblGioc(5));
        t_->click(form().cmdUp);
        t_->binder().act([this] { user::pick(form(), form().cboRL, 2); });
        QCOMPARE(form().focused(), static_cast<Control*>(&form().cboRL));
        t_->click(form().lblGioc(6));
        t_->binder().act([this] { form().cboRL.set_enabled(false); });
        QVERIFY(!t_->widget(form().cboRL).isEnabled());
        QCOMPARE(form().focused(), static_cast<Control*>(&form().cboRL));
    }

    void the_image_stays_the_same_while_the_focus_walks_over_the_tab() {
        const std::string image = home_->image_bytes();
        for (int i = 0; i < 80; ++i) t_->key(Qt::Key_Tab);
        QVERIFY(t_->platform.messages.empty());
        QCOMPARE(home_->image_bytes(), image);
    }

private:
    frmKalco& form() { return t_->form(); }

    std::unique_ptr<test::DemoHome> home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestFocus)
#include "test_focus.moc"
