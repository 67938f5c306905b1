#include <QApplication>
#include <QPushButton>
#include <QtTest>
#include <algorithm>

#include "app/support/dialogs.h"
#include "app/support/search.h"
#include "app/support/test_list.h"
#include "app/text.h"
#include "disc/image/opening.h"
#include "support/faulty_files.h"
#include "work/sheets/ids.h"

using namespace kalco;

/// The search for players as a window: its life, its keys, the way to a player.
class TestToolsSearchKeys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void it_stands_beside_the_window() {
        test::TestWindow t(home_);
        QVERIFY(test::open_search() == nullptr);
        test::choose_menu(t.window, QStringLiteral("Modifica"), QStringLiteral("Cerca giocatori"));
        QApplication::processEvents();
        app::SearchWindow* const window = test::open_search();
        QVERIFY(window != nullptr && window->isVisible() && window->isActiveWindow());
        QVERIFY(window->isWindow() && !window->isModal() && window->parentWidget() == nullptr);
        QVERIFY(window->minimumSizeHint().width() <= 1008 && window->minimumSizeHint().height() <= 720);
        t.window.activateWindow();
        t.select_tab(2);
        QVERIFY(window->isVisible());
    }

    void the_key_brings_it_back_with_the_name_to_type() {
        test::TestWindow t(home_);
        const test::Search search(t);
        auto& name = search.field<QLineEdit>("fieldName");
        QVERIFY(name.hasFocus());
        search.type_name(QStringLiteral("ar"));
        search.table().setFocus();
        t.window.activateWindow();
        QApplication::processEvents();
        QVERIFY(!search.window().isActiveWindow());
        const test::Search again(t);
        QCOMPARE(&again.window(), &search.window());
        QVERIFY(search.window().isActiveWindow() && name.hasFocus());
        QCOMPARE(name.selectedText(), QStringLiteral("ar"));
        // In the search itself the key does the same.
        search.table().setFocus();
        search.key(search.table(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(name.hasFocus() && name.selectedText() == QStringLiteral("ar"));
    }

    void escape_closes_it_and_it_opens_anew() {
        test::TestWindow t(home_);
        for (const char* field : {"fieldName", "comboTeam", "tablePlayers", "buttonGo"}) {
            const test::Search search(t);
            QVERIFY(search.field<QLineEdit>("fieldName").text().isEmpty());
            search.type_name(QStringLiteral("ar"));
            auto& widget = search.field<QWidget>(field);
            widget.setFocus();
            QTest::keyClick(&widget, Qt::Key_Escape);
            QVERIFY2(test::open_search() == nullptr, field);
        }
        test::Search(t).press("buttonClose");
        QVERIFY(test::open_search() == nullptr);
        QVERIFY(t.window.isVisible() && !t.failure);
    }

    void it_goes_with_the_editor() {
        {
            test::TestWindow t(home_);
            const test::Search search(t);
        }
        QVERIFY(test::open_search() == nullptr);
    }

    void without_an_image_the_menu_has_no_search() {
        test::TestWindow t(home_.path() + "/none.bin", home_.path());
        QTest::keyClick(&t.window, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(test::open_search() == nullptr);
    }

    void it_goes_to_the_player_data() {
        QTest::addColumn<QString>("id");
        QTest::addColumn<int>("team");
        QTest::addColumn<int>("row");
        QTest::newRow("roster") << "t10p10" << 10 << 9;
        QTest::newRow("last of the shifted team") << "t31p23" << 31 << 22;
        QTest::newRow("who has the same record") << "t32p01" << 32 << 0;
        QTest::newRow("classic team") << "t62p23" << 62 << 22;
        QTest::newRow("first of the pool") << "m001" << 95 << 0;
        QTest::newRow("last of the pool") << "m462" << 95 << 461;
    }

    void it_goes_to_the_player() {
        QFETCH(QString, id);
        QFETCH(int, team);
        QFETCH(int, row);
        const int player = row_of_place(player_of_id(id.toStdString()).value());
        for (const bool by_key : {true, false}) {
            test::TestWindow t(home_);
            t.select_tab(tab::numbers);
            const test::Search search(t);
            search.choose(player, 3);
            const QString name = search.column(0)[player];
            if (by_key) {
                search.key(search.table(), Qt::Key_Return);
            } else {
                const QRect cell = search.table().visualRect(search.table().currentIndex());
                QTest::mouseDClick(search.table().viewport(), Qt::LeftButton, {}, cell.center());
                QApplication::processEvents();
            }
            frmKalco& form = t.form();
            QCOMPARE(form.SSTab1.tab(), tab::players);
            QCOMPARE(form.cboSeqSQ.row(), team);
            QCOMPARE(form.listDat.row(), row);
            QCOMPARE(app::qt_text(form.txtName.text()), name);
            QVERIFY2(t.window.isActiveWindow(), by_key ? "by key" : "by mouse");
            QVERIFY(search.window().isVisible());
            QVERIFY(!t.failure);
        }
    }

    void the_keyboard_alone_does_all() {
        test::TestWindow t(home_);
        const test::Search search(t);
        const auto type = [&](const char* text) {
            QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text));
            QApplication::processEvents();
        };
        const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            search.key(*QApplication::focusWidget(), key, modifiers);
        };
        type("a");
        // The rows are walked through from the name.
        for (int i = 0; i < 3; ++i) press(Qt::Key_Down);
        QCOMPARE(search.chosen(), search.players().at(2));
        QVERIFY(search.field<QLineEdit>("fieldName").hasFocus());
        press(Qt::Key_Tab);
        type("Italy");
        QVERIFY(search.players().size() <= 23);
        press(Qt::Key_Tab);
        type("Cen");
        press(Qt::Key_Tab);
        type("Vel");
        press(Qt::Key_Tab);
        type("13");
        QCOMPARE(search.field<QComboBox>("comboLeast_1").currentText(), QStringLiteral("13"));
        QVERIFY(!search.players().empty());
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        const QList<QWidget*> order = stops(search, Qt::Key_Tab);
        QVERIFY(order.contains(&search.table()) && order.contains(&search.field<QWidget>("buttonReset")));
        search.table().setFocus(Qt::TabFocusReason);
        press(Qt::Key_Home);
        for (int i = 0; i < 3; ++i) press(Qt::Key_Right);
        press(Qt::Key_D, Qt::ControlModifier);
        QStringList ages = search.column(app::player_column::age);
        QVERIFY(std::ranges::is_sorted(ages));
        press(Qt::Key_D, Qt::ControlModifier);
        ages = search.column(app::player_column::age);
        std::ranges::reverse(ages);
        QVERIFY(std::ranges::is_sorted(ages));
        press(Qt::Key_Space);
        QVERIFY(search.told().contains(QStringLiteral("1 nel confronto")));
        search.field<QWidget>("fieldName").setFocus(Qt::TabFocusReason);
        press(Qt::Key_Return);
        QCOMPARE(t.form().cboSeqSQ.row(), 10);
    }

    void enter_in_the_name_takes_the_first() {
        test::TestWindow t(home_);
        const test::Search search(t);
        search.type_name(search.column(0)[1500]);
        const PlayerPlace place = place_of_row(search.players().front());
        search.key(search.field<QWidget>("fieldName"), Qt::Key_Return);
        QCOMPARE(t.form().listDat.row(), std::get<PoolRow>(place).value());
        QCOMPARE(search.chosen(), search.players().front());
    }

    void an_image_that_cannot_be_read_is_told() {
        test::FaultyFiles files;
        test::TestWindow t(home_.image(), home_.path(), [&files](const std::string& path) {
            return open_for_saves(files, path, Failures::Kind::run_time);
        });
        files.plan(1, {test::CallFault::Kind::fails, EIO});
        const test::Search search(t);
        QVERIFY(search.players().empty());
        QVERIFY2(search.told().startsWith(QStringLiteral("L'immagine non si può leggere: ")),
                 qPrintable(search.told()));
        search.key(search.field<QWidget>("fieldName"), Qt::Key_Return);
        QVERIFY(!t.failure);
    }

    void everything_has_a_name_and_keys_do_not_clash() {
        test::TestWindow t(home_);
        const test::Search search(t);
        QStringList keys;
        for (const QWidget* widget : search.window().findChildren<QWidget*>()) {
            if (const auto* label = qobject_cast<const QLabel*>(widget);
                label != nullptr && label->buddy() != nullptr) {
                keys << QKeySequence::mnemonic(label->text()).toString();
            } else if (const auto* button = qobject_cast<const QPushButton*>(widget)) {
                keys << QKeySequence::mnemonic(button->text()).toString();
            }
            const bool field = qobject_cast<const QTableView*>(widget) != nullptr ||
                               widget->objectName().startsWith(QStringLiteral("comboSkill_")) ||
                               widget->objectName().startsWith(QStringLiteral("comboLeast_"));
            if (field) QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        }
        QCOMPARE(keys.size(), 8);
        QVERIFY(!keys.contains(QString()));
        QCOMPARE(keys.removeDuplicates(), 0);
    }

private:
    /// What the tab key visits from the name until it is there again.
    static QList<QWidget*> stops(const test::Search& search, Qt::Key key) {
        QWidget* const first = &search.field<QWidget>("fieldName");
        first->setFocus(Qt::TabFocusReason);
        QList<QWidget*> visited;
        for (int i = 0; i < 40; ++i) {
            search.key(*QApplication::focusWidget(), key);
            if (QApplication::focusWidget() == first) break;
            visited << QApplication::focusWidget();
        }
        return visited;
    }

    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestToolsSearchKeys)
#include "test_tools_search_keys.moc"
