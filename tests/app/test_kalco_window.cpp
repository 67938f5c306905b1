#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include "app/status_line.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/text.h"
#include "app/widgets/notice.h"
#include "app/widgets/pick_combo.h"
#include "disc/runtime_error.h"
#include "editor/window/general.h"
#include "editor/window/user.h"

using namespace kalco;

/// The window as a whole: its life, its texts, its groups of option buttons.
class TestKalcoWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void a_cancelled_start_shows_no_window() {
        test::TestWindow t("");
        QVERIFY(t.form().ended == Ending::cancelled);
        QVERIFY(!t.window.isVisible());
        QVERIFY(t.binder().over());
    }

    void an_image_held_by_another_program_ends_the_start() {
        test::TestWindow first(home_);
        test::TestWindow second(home_);
        QVERIFY(second.form().ended == Ending::denied);
        QVERIFY(!second.window.isVisible());
        QCOMPARE(second.platform.messages.size(), 1U);
    }

    void an_image_that_cannot_be_opened_leaves_a_window() {
        test::TestWindow t(home_.path() + "/none.bin", home_.path());
        QVERIFY(t.window.isVisible());
        QVERIFY(!t.binder().over());
    }

    void an_error_that_nothing_catches_ends_the_run_once() {
        test::TestWindow t(home_);
        t.form().cmdNew.click = [] { throw RuntimeError(error::overflow); };
        t.click(t.form().cmdNew);
        QVERIFY(t.failure != nullptr);
        QVERIFY(t.binder().over());
        QVERIFY_THROWS_EXCEPTION(RuntimeError, std::rethrow_exception(t.failure));
        bool acted = false;
        t.binder().act([&] { acted = true; });
        QVERIFY(!acted);
    }

    void closing_the_window_lets_the_image_go() {
        {
            test::TestWindow t(home_);
            QVERIFY(t.window.close());
            QVERIFY(!t.form().image.is_open());
            QVERIFY(t.form().ended == Ending::closed);
        }
        test::TestWindow again(home_);
        QVERIFY(again.form().image.is_open());
    }

    void the_title_tells_the_image() {
        test::TestWindow t(home_);
        QVERIFY(t.window.windowTitle().contains(QStringLiteral("demo.bin")));
    }

    void a_dropped_file_is_told() {
        test::TestWindow t(home_);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QStringLiteral("/x/other.bin"))});
        QString dropped;
        connect(&t.window, &app::KalcoWindow::image_wanted, this, [&](const QString& path) { dropped = path; });
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&t.window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&t.window, &drop);
        QCOMPARE(dropped, QStringLiteral("/x/other.bin"));
    }

    void a_pending_import_is_told_until_it_is_gone() {
        test::TestWindow t(home_);
        auto* const line = t.window.findChild<app::Notice*>(QStringLiteral("viewPending"));
        t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 3); });
        QVERIFY(line->text().isEmpty());
        t.platform.choices.push_back("");
        t.click(t.form().cmdImp);
        QVERIFY(!line->text().isEmpty());
        t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 4); });
        QVERIFY(line->text().isEmpty());
    }

    void access_keys_select_tabs() {
        test::TestWindow t(home_);
        QTest::keyClick(&t.window, Qt::Key_F, Qt::AltModifier);
        QCOMPARE(t.form().SSTab1.tab(), tab::formations);
        QTest::keyClick(&t.window, Qt::Key_K, Qt::AltModifier);
        QCOMPARE(t.form().SSTab1.tab(), tab::kickers);
        QCOMPARE(t.form().focused(), static_cast<Control*>(&t.form().SSTab1));
        QTabBar& bar = *t.widget<QTabWidget>(t.form().SSTab1).tabBar();
        QVERIFY(bar.hasFocus());
        t.key(bar, Qt::Key_Left);
        QCOMPARE(t.form().SSTab1.tab(), tab::league);
        QVERIFY(bar.hasFocus());
    }

    void an_access_key_moves_the_focus_to_its_field() {
        test::TestWindow t(home_);
        t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 3); });
        QTest::keyClick(&t.window, Qt::Key_T, Qt::AltModifier);
        QCOMPARE(t.form().focused(), static_cast<Control*>(&t.form().txtSqDec));
        QVERIFY(t.widget(t.form().txtSqDec).hasFocus());
    }

    void no_two_access_keys_of_a_tab_are_the_same() {
        test::TestWindow t(home_);
        auto& tabs = t.widget<QTabWidget>(t.form().SSTab1);
        QStringList shared;
        for (int i = 0; i < tabs.count(); ++i) shared << QKeySequence::mnemonic(tabs.tabText(i)).toString();
        for (const QAction* menu : t.window.menuBar()->actions()) {
            shared << QKeySequence::mnemonic(menu->text()).toString();
        }
        for (const QAbstractButton* button : t.window.findChildren<QAbstractButton*>()) {
            if (!tabs.isAncestorOf(button)) shared << QKeySequence::mnemonic(button->text()).toString();
        }
        QVERIFY(shared.contains(QStringLiteral("Alt+A")));
        for (int i = 0; i < tabs.count(); ++i) {
            QStringList keys = shared;
            for (const QLabel* label : tabs.widget(i)->findChildren<QLabel*>()) {
                if (label->buddy() != nullptr) keys << QKeySequence::mnemonic(label->text()).toString();
            }
            for (const QAbstractButton* button : tabs.widget(i)->findChildren<QAbstractButton*>()) {
                keys << QKeySequence::mnemonic(button->text()).toString();
            }
            keys.removeAll(QString());
            QVERIFY2(keys.removeDuplicates() == 0, qPrintable(QString::number(i)));
        }
    }

    void the_labels_of_a_player_are_the_captions_of_his_fields() {
        test::TestWindow t(home_);
        frmKalco& form = t.form();
        std::vector<std::pair<const Control*, BitField>> fields{
            {&form.cboRuolo, role_bits},          {&form.cboOutSide, out_of_role_bits},
            {&form.cboPelle, skin_bits},          {&form.cboCapelli, hair_style_bits},
            {&form.cboColCap, hair_colour_bits},  {&form.cboStlBar, beard_style_bits},
            {&form.cboColBar, beard_colour_bits}, {&form.cboScarpa, boots_bits},
            {&form.txtAlt, height_bits},          {&form.txtEta, age_bits},
            {&form.cboFisico, build_bits},        {&form.cboPiede, foot_bits}};
        const auto combos = skill_combos(form);
        for (std::size_t i = 0; i < skill_count; ++i) fields.emplace_back(combos[i], skill_bits[i]);
        const auto labels = t.window.findChildren<QLabel*>();
        for (const auto& [control, field] : fields) {
            const auto* const widget = t.binder().widget_of(*control);
            const auto label = std::find_if(labels.begin(), labels.end(),
                                            [&](const QLabel* found) { return found->buddy() == widget; });
            QVERIFY2(label != labels.end(), control->name().c_str());
            QCOMPARE((*label)->text().remove(u'&'), app::qt_text(field.caption));
        }
    }

    void a_key_saves_what_the_shown_tab_holds() {
        test::TestWindow t(home_);
        frmKalco& form = t.form();
        const auto saves = [&t] {
            t.platform.messages.clear();
            QTest::keyClick(&t.window, Qt::Key_S, Qt::ControlModifier);
            QApplication::processEvents();
            std::vector<std::string> texts;
            for (const auto& message : t.platform.messages) texts.push_back(message.text);
            return texts;
        };
        const std::vector<std::string> saved{"Salvataggio effettuato con successo"};
        QVERIFY(saves().empty());
        QCOMPARE(t.window.findChild<app::StatusLine*>()->text(), QStringLiteral("Qui non c'è niente da salvare"));
        t.binder().act([&] {
            user::pick(form, form.cboSeqSQ, 3);
            user::pick(form, form.cboVel, form.cboVel.row() == 7 ? 0 : 7);
        });
        const std::string speed = form.cboVel.text();
        QVERIFY(saves() == saved);
        QCOMPARE(form.cboVel.text(), speed);
        t.select_tab(tab::kickers);
        t.binder().act([&] { user::pick(form, form.cboSquadra, 3); });
        QVERIFY(saves() == saved);
        t.select_tab(tab::formations);
        t.binder().act([&] { user::pick(form, form.cboSeqSQ2, 3); });
        QVERIFY(saves() == saved);
        t.click(form.lblGioc(4));
        t.click(form.cmdUp);
        t.click(form.pbFZ(1).value() < StrengthBar::most ? form.cmdPiu(1) : form.cmdMeno(1));
        QCOMPARE(saves().size(), 2U);
        t.select_tab(tab::numbers);
        QVERIFY(saves().empty());
        t.binder().act([&] { user::pick(form, form.cboSQNum, 3); });
        t.pick_row(form.ListName, 0);
        QVERIFY(saves() == saved);
        t.select_tab(tab::transfers);
        QVERIFY(saves().empty());
        t.select_tab(tab::league);
        QVERIFY(saves().empty());
    }

    void keys_select_the_tabs_and_open_an_image() {
        test::TestWindow t(home_);
        for (const int tab : {5, 4, 3, 2, 1, 0}) {
            QTest::keyClick(&t.window, static_cast<Qt::Key>(Qt::Key_1 + tab), Qt::ControlModifier);
            QCOMPARE(t.form().SSTab1.tab(), tab);
        }
        t.platform.choices.push_back("");
        QTest::keyClick(&t.window, Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(t.platform.dialogs.size(), 2U);
    }

    void what_was_saved_and_exported_is_told() {
        test::TestWindow t(home_);
        frmKalco& form = t.form();
        const auto told = [&t] { return t.window.findChild<app::StatusLine*>()->text(); };
        t.binder().act([&] {
            user::pick(form, form.cboSeqSQ, 10);
            user::pick(form, form.listDat, 9);
            user::pick(form, form.cboVel, form.cboVel.row() == 7 ? 0 : 7);
        });
        const QString player = app::qt_text(form.listDat.text());
        t.click(form.cmdSaveCar);
        QVERIFY(QRegularExpression(QStringLiteral("^Salvato: giocatore Italy, %1 – [1-9][0-9]* byte$").arg(player))
                    .match(told())
                    .hasMatch());
        t.click(form.cmdSaveCar);
        QCOMPARE(told(), QStringLiteral("Niente da scrivere: l'immagine è già così"));
        const QString file = QStringLiteral("Export/%1.DAT").arg(app::qt_text(form.txtSQ.text()));
        QFile::remove(QString::fromStdString(home_.path()) + u'/' + file);
        t.click(form.cmdExp);
        QCOMPARE(told(), QStringLiteral("Scritto: ") + file);
        QTest::qWait(20);
        t.click(form.cmdExp);
        QCOMPARE(told(), file + QStringLiteral(", sostituito"));
    }

    void option_buttons_follow_the_model() {
        test::TestWindow t(home_);
        t.select_tab(tab::kickers);
        frmKalco& form = t.form();
        t.binder().act([&] { user::pick(form, form.cboSquadra, 3); });
        t.click(form.opCPC(4));
        t.click(form.opCPC(4));
        QVERIFY(form.opCPC(4).value() && t.widget<QRadioButton>(form.opCPC(4)).isChecked());
        t.key(Qt::Key_Down);
        QVERIFY(form.opCPC(5).value() && !form.opCPC(4).value());
        QVERIFY(t.widget(form.opCPC(5)).hasFocus());
        t.key(Qt::Key_Up);
        t.key(Qt::Key_Up);
        QVERIFY(t.widget<QRadioButton>(form.opCPC(3)).isChecked());
        t.click(form.opCPC(0));
        t.key(Qt::Key_Up);
        QVERIFY(form.opCPC(0).value());
        t.key(Qt::Key_Tab);
        QVERIFY(form.focused()->frame() == &form.fraPZL);
    }

    void a_combo_shows_a_text_that_is_not_among_its_rows() {
        test::TestWindow t(home_);
        frmKalco& form = t.form();
        t.binder().act([&] {
            user::pick(form, form.cboSeqSQ, 3);
            form.cboPosit.set_text("20");
        });
        auto& combo = t.widget<app::PickCombo>(form.cboPosit);
        QCOMPARE(combo.shown_text(), QStringLiteral("20"));
        QCOMPARE(combo.currentIndex(), -1);
        combo.setFocus(Qt::TabFocusReason);
        t.key(combo, Qt::Key_Down);
        QCOMPARE(form.cboPosit.row(), 0);
        QCOMPARE(combo.shown_text(), QStringLiteral("12"));
    }

    void picking_the_same_row_of_a_combo_raises_the_pick() {
        test::TestWindow t(home_);
        frmKalco& form = t.form();
        t.binder().act([&] { user::pick(form, form.cboSeqSQ, 3); });
        t.binder().act([&] { user::type(form, form.txtName, "Qwerty"); });
        auto& combo = t.widget<app::PickCombo>(form.cboSeqSQ);
        QTest::mouseClick(&combo, Qt::LeftButton);
        QTest::keyClick(combo.view(), Qt::Key_Return);
        QVERIFY(form.txtName.text() != "Qwerty");
        QCOMPARE(form.cboSeqSQ.row(), 3);
    }

private:
    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestKalcoWindow)
#include "test_kalco_window.moc"
