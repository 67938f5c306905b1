#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QtTest>

#include "app/saves_stack.h"
#include "app/support/dialogs.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/tools/changes/changes_model.h"
#include "app/tools/changes/changes_view.h"
#include "app/tools/compare/compare_dialog.h"
#include "app/tools/sectors/sectors_dialog.h"
#include "app/tools/sheets/import_dialog.h"
#include "disc/image/opening.h"
#include "editor/window/user.h"
#include "support/faulty_files.h"
#include "work/sheets/sheets.h"
#include "work/sheets/values.h"
#include "work/write_changes.h"

using namespace kalco;

/// Saves of the tabs and the tools, taken back and made again in the menu.
class TestToolsHour : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }
    void init() { home_ = std::make_unique<test::DemoHome>(); }

    void the_menu_names_the_save() {
        test::TestWindow t(*home_);
        QCOMPARE(item(t, "Annulla"), QStringLiteral("Annulla"));
        QVERIFY(!action(t, "Annulla").isEnabled() && !action(t, "Ripeti").isEnabled());
        save_player(t, 9, 3);
        QVERIFY(item(t, "Annulla").startsWith(QStringLiteral("Annulla: Giocatore Italy, ")));
        test::choose_menu(t.window, QStringLiteral("Modifica"), QStringLiteral("Annulla"));
        QVERIFY(item(t, "Ripeti").startsWith(QStringLiteral("Ripeti: Giocatore Italy, ")));
        QVERIFY(!action(t, "Annulla").isEnabled());
        QVERIFY(!t.failure);
    }

    void the_shown_player_follows() {
        test::TestWindow t(*home_);
        save_player(t, 9, 3);
        const std::string saved = t.form().cboVel.text();
        take_back(t);
        t.pick_row(t.form().listDat, 9);
        QVERIFY(t.form().cboVel.text() != saved);
        make_again(t);
        t.pick_row(t.form().listDat, 9);
        QCOMPARE(t.form().cboVel.text(), saved);
    }

    void the_keyboard_alone_reaches_every_menu() {
        test::TestWindow t(*home_);
        const std::string before = home_->image_bytes();
        save_player(t, 9, 3);
        QTest::keyClick(&t.window, Qt::Key_F10);
        QStringList seen;
        for (int menu = 0; menu < 4; ++menu) {
            auto* const list = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(list != nullptr);
            seen << list->title().remove(u'&');
            if (menu < 3) QTest::keyClick(list, Qt::Key_Right);
        }
        QCOMPARE(seen.join(u' '), QStringLiteral("File Modifica Strumenti Aiuto"));
        for (int menu = 0; menu < 2; ++menu) QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Left);
        QWidget* const edit = QApplication::activePopupWidget();
        QTest::keyClick(edit, Qt::Key_Down);
        if (qobject_cast<QMenu*>(edit)->activeAction() != qobject_cast<QMenu*>(edit)->actions().constFirst()) {
            QTest::keyClick(edit, Qt::Key_Up);
        }
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(home_->image_bytes() == before);
    }

    void the_key_inside_a_text_field_is_the_fields() {
        test::TestWindow t(*home_);
        const std::string before = home_->image_bytes();
        save_player(t, 9, 3);
        const std::string saved = home_->image_bytes();
        t.pick_row(t.form().listDat, 9);
        t.type(t.form().txtName, QStringLiteral("Rossi"));
        QTest::keyClick(&t.widget(t.form().txtName), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(t.form().txtName.text() != "Rossi");
        QVERIFY(home_->image_bytes() == saved);
        take_back(t);
        QVERIFY(home_->image_bytes() == before);
    }

    void a_new_save_drops_what_was_taken_back() {
        test::TestWindow t(*home_);
        save_player(t, 3, 1);
        save_player(t, 4, 2);
        take_back(t);
        QVERIFY(action(t, "Ripeti").isEnabled());
        save_player(t, 5, 3);
        QVERIFY(!action(t, "Ripeti").isEnabled());
        QCOMPARE(t.form().history.texts().size(), 2U);
    }

    void another_image_has_no_saves_to_take_back() {
        test::TestWindow t(*home_);
        save_player(t, 3, 1);
        const test::DemoHome other;
        t.platform.choices.push_back(other.image());
        t.click(t.form().cmdOpen);
        QVERIFY(!action(t, "Annulla").isEnabled());
        QCOMPARE(item(t, "Annulla"), QStringLiteral("Annulla"));
    }

    void what_another_program_changed_is_not_taken_back() {
        test::TestWindow t(*home_);
        save_player(t, 9, 3);
        std::string bytes = home_->image_bytes();
        const std::int64_t place = t.form().image.is_open() ? first_changed(t) : 0;
        bytes[static_cast<std::size_t>(place)] = static_cast<char>(bytes[static_cast<std::size_t>(place)] ^ 1);
        put(QString::fromStdString(home_->image()), bytes);
        test::Answers answers;
        answers.press(QStringLiteral("OK"));
        take_back(t);
        QVERIFY(answers.all_given());
        QCOMPARE(answers.told().value(0), QStringLiteral("Niente è stato cambiato: un altro programma ha cambiato gli "
                                                         "stessi settori."));
        QVERIFY(home_->image_bytes() == bytes);
        QVERIFY(!action(t, "Annulla").isEnabled() && !action(t, "Ripeti").isEnabled());
        QVERIFY(!t.failure);
    }

    /// The system fails at one call after the other while a save is taken back: it is, or it is told and nothing
    /// changes. What follows the last sync only reads.
    void a_fault_while_taking_back_is_told() {
        constexpr int calls = 16;
        int refused = 0;
        int done = 0;
        for (int call = 1; call <= calls; ++call) {
            home_ = std::make_unique<test::DemoHome>();
            test::FaultyFiles files;
            test::TestWindow t(home_->image(), home_->path(), [&files](const std::string& path) {
                return open_for_saves(files, path, Failures::Kind::run_time);
            });
            const std::string before = home_->image_bytes();
            save_player(t, 9, 3);
            const std::string saved = home_->image_bytes();
            test::Answers answers;
            answers.press(QStringLiteral("OK"));
            files.plan(call, {test::CallFault::Kind::fails, EIO});
            take_back(t);
            files.plan(0);
            QVERIFY2(answers.all_given(), qPrintable(QString::number(call)));
            const bool stands = action(t, "Annulla").isEnabled();
            QVERIFY(home_->image_bytes() == (stands ? saved : before));
            QCOMPARE(action(t, "Ripeti").isEnabled(), !stands);
            QVERIFY(answers.told().value(0).startsWith(stands ? QStringLiteral("Niente è stato cambiato: ")
                                                              : QStringLiteral("È fatto, ma con un errore: ")));
            QVERIFY(!t.failure);
            (stands ? refused : done) += 1;
        }
        QCOMPARE(refused, 14);
        QCOMPARE(done, 2);
    }

    /// Every tab and every kind of tool, back to the first byte and forth again.
    void a_mixed_hour_goes_back_and_forth() {
        test::TestWindow t(*home_);
        frmKalco& form = t.form();
        std::vector<std::string> states{home_->image_bytes()};
        const auto note = [&](bool quiet = false) {
            std::string now = home_->image_bytes();
            if (now == states.back() && quiet) return;
            QVERIFY(now != states.back());
            states.push_back(std::move(now));
        };
        save_player(t, 9, 3);
        note();
        t.type(form.txtSqShort, QStringLiteral("ITX"));
        t.click(form.cmdName);
        note();
        t.select_tab(tab::league);
        t.pick_row(form.listDefault, 2);
        t.pick_row(form.listSQLink, 12);
        t.click(form.cmdLink);
        note();
        t.select_tab(tab::kickers);
        t.binder().act([&] { user::pick(form, form.cboSquadra, 10); });
        t.click(form.opRIG(form.opRIG(3).value() ? 4 : 3));
        t.click(form.cmdCrea);
        note();
        t.select_tab(tab::formations);
        t.binder().act([&] { user::pick(form, form.cboSeqSQ2, 10); });
        t.click(form.lblGioc(8));
        t.click(form.cmdUp);
        t.click(form.cmdModifica);
        note();
        t.click(form.pbFZ(1).value() > 5 ? form.cmdMeno(1) : form.cmdPiu(1));
        t.click(form.cmdSalva);
        note();
        t.select_tab(tab::numbers);
        t.binder().act([&] {
            user::pick(form, form.cboSQNum, 60);
            user::pick(form, form.ListName, 4);
            user::type(form, form.txtNumMod, "77");
        });
        t.click(form.cmdModNum);
        t.click(form.cmdSaveNum);
        note();
        import_sheet(t);
        note();
        take_over(t);
        note();
        repair(t);
        note();
        QCOMPARE(form.history.texts().size(), states.size() - 1);

        for (std::size_t at = states.size() - 1; at > 0; --at) {
            test::choose_menu(t.window, QStringLiteral("Modifica"), QStringLiteral("Annulla"));
            QVERIFY2(home_->image_bytes() == states[at - 1], qPrintable(QString::number(at)));
        }
        QVERIFY(!action(t, "Annulla").isEnabled());
        for (std::size_t at = 1; at < states.size(); ++at) {
            test::choose_menu(t.window, QStringLiteral("Modifica"), QStringLiteral("Ripeti"));
            QVERIFY2(home_->image_bytes() == states[at], qPrintable(QString::number(at)));
        }
        QVERIFY(!action(t, "Ripeti").isEnabled());
        QVERIFY(!t.failure);
    }

private:
    static void save_player(test::TestWindow& t, int player, int speed) {
        t.select_tab(tab::players);
        t.binder().act([&] {
            frmKalco& form = t.form();
            user::pick(form, form.cboSeqSQ, 10);
            user::pick(form, form.listDat, player);
            user::pick(form, form.cboVel, form.cboVel.row() == speed ? speed + 1 : speed);
        });
        t.click(t.form().cmdSaveCar);
    }

    /// A box that was answered leaves no window active here, which a desktop would see to.
    static void press(test::TestWindow& t, Qt::Key key) {
        t.window.activateWindow();
        QApplication::processEvents();
        QTest::keyClick(&t.window, key, Qt::ControlModifier);
    }
    static void take_back(test::TestWindow& t) { press(t, Qt::Key_Z); }
    static void make_again(test::TestWindow& t) { press(t, Qt::Key_Y); }

    /// Another speed for one player, from a sheet.
    void import_sheet(test::TestWindow& t) const {
        const QString sheet = QString::fromStdString(home_->path()) + QStringLiteral("/rosa.csv");
        const bool fast = cell_at(read_sheets(t.form().image), speed(), imported) == "18";
        put(sheet, fast ? "id,speed\r\nt20p05,13\r\n" : "id,speed\r\nt20p05,18\r\n");
        test::Answers answers;
        answers.choose(sheet);
        test::choose_menu(t.window, QStringLiteral("Strumenti"), QStringLiteral("Importa foglio"));
        QVERIFY(answers.all_given());
        auto* const dialog = t.window.findChild<app::ImportDialog*>();
        QVERIFY(dialog != nullptr);
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("buttonApply")), Qt::LeftButton);
        if (dialog->isVisible()) QTest::keyClick(dialog, Qt::Key_Escape);
        QCOMPARE(cell_at(read_sheets(t.form().image), speed(), imported), fast ? "13" : "18");
    }

    /// One value of the image as it was at the start.
    void take_over(test::TestWindow& t) const {
        const test::DemoHome other;
        test::Answers answers;
        answers.choose(QString::fromStdString(other.image()));
        test::choose_menu(t.window, QStringLiteral("Strumenti"), QStringLiteral("Confronta"));
        QVERIFY(answers.all_given());
        auto* const dialog = t.window.findChild<app::CompareDialog*>();
        QVERIFY(dialog != nullptr);
        app::ChangesModel& rows = dialog->findChild<app::ChangesView*>()->model();
        rows.toggle(rows.index(0, 0, rows.index(0, 0)));
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("buttonTake")), Qt::LeftButton);
        QTest::keyClick(dialog, Qt::Key_Escape);
    }

    static constexpr int imported = 20 * 23 + 4;
    static const SheetColumn& speed() { return *sheet_named(players_sheet)->column_named("speed"); }

    static void repair(test::TestWindow& t) {
        test::choose_menu(t.window, QStringLiteral("Strumenti"), QStringLiteral("Settori"));
        auto* const dialog = t.window.findChild<app::SectorsDialog*>();
        QVERIFY(dialog != nullptr);
        QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("buttonRepair")), Qt::LeftButton);
        QTest::keyClick(dialog, Qt::Key_Escape);
    }

    static QAction& action(test::TestWindow& t, const char* name) {
        for (QAction* const menu : t.window.menuBar()->actions()) {
            for (QAction* const each : menu->menu()->actions()) {
                if (QString(each->text()).remove(u'&').startsWith(QString::fromLatin1(name))) return *each;
            }
        }
        throw std::invalid_argument(name);
    }
    static QString item(test::TestWindow& t, const char* name) { return QString(action(t, name).text()).remove(u'&'); }

    /// The 0-based place of a byte that the last save changed.
    std::int64_t first_changed(test::TestWindow& t) const {
        const std::string now = home_->image_bytes();
        t.binder().act([&] { user::undo(t.form()); });
        const std::string before = home_->image_bytes();
        t.binder().act([&] { user::redo(t.form()); });
        return std::mismatch(now.begin(), now.end(), before.begin()).first - now.begin();
    }
    static void put(const QString& path, const std::string& bytes) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QCOMPARE(file.write(bytes.data(), static_cast<qint64>(bytes.size())), static_cast<qint64>(bytes.size()));
    }

    std::unique_ptr<test::DemoHome> home_;
};

KALCO_WINDOW_TEST(TestToolsHour)
#include "test_tools_hour.moc"
