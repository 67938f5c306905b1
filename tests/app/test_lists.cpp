#include <QApplication>
#include <QScrollBar>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/rows_view.h"
#include "editor/window/user.h"

using namespace kalco;

/// Lists: presses, the double click, the keyboard, what the rows show.
class TestLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        t_ = std::make_unique<test::TestWindow>(home_);
        t_->select_tab(tab::league);
        t_->binder().act([this] { user::pick(form(), form().cboSqNC, 4); });
    }
    void cleanup() { t_.reset(); }

    void a_press_picks_and_a_double_click_takes_the_player() {
        t_->pick_row(form().listNC, 7);
        QCOMPARE(form().listNC.row(), 7);
        QVERIFY(rows(form().listNC).hasFocus());
        QCOMPARE(form().lblNaz.caption(), std::string("Scotland"));
        QCOMPARE(form().listAppNameNC.count(), 0);
        t_->double_click_row(form().listNC, 6);
        QCOMPARE(rows(form().listAppNameNC).rows(), QStringList(rows(form().listNC).rows()[6]));
        QVERIFY(t_->platform.messages.empty());
    }

    void a_press_on_the_selected_row_raises_the_click_again() {
        int clicks = 0;
        const Event original = form().listNC.click;
        form().listNC.click = [&] {
            ++clicks;
            original();
        };
        t_->pick_row(form().listNC, 7);
        t_->pick_row(form().listNC, 7);
        QCOMPARE(clicks, 2);
    }

    void a_press_below_the_rows_does_nothing() {
        t_->double_click_row(form().listNC, 6);
        RowsView& picks = rows(form().listAppNameNC);
        QTest::mouseClick(picks.viewport(), Qt::LeftButton, {}, picks.viewport()->rect().bottomLeft() + QPoint(5, -5));
        QCOMPARE(form().listAppNameNC.row(), -1);
    }

    void the_keyboard_moves_takes_and_removes() {
        t_->pick_row(form().listNC, 4);
        t_->key(Qt::Key_Down);
        QCOMPARE(form().listNC.row(), 5);
        t_->key(Qt::Key_Return);
        QCOMPARE(form().listAppNameNC.count(), 1);
        t_->key(Qt::Key_Down);
        t_->key(Qt::Key_Enter);
        QCOMPARE(form().listAppNameNC.count(), 2);
        t_->key(Qt::Key_Delete);
        QCOMPARE(form().listAppNameNC.count(), 2);
        t_->pick_row(form().listAppNameNC, 0);
        t_->key(Qt::Key_Delete);
        QCOMPARE(form().listAppNameNC.count(), 1);
        QCOMPARE(form().lblNumGioc.caption(), std::string("1"));
    }

    void typing_finds_a_name() {
        const QStringList names = rows(form().listNC).rows();
        t_->pick_row(form().listNC, 0);
        const QString wanted = names[200];
        for (const QChar letter : wanted) QTest::keyClick(&rows(form().listNC), letter.toLatin1());
        QCOMPARE(form().listNC.row(), static_cast<int>(names.indexOf(wanted)));
    }

    void the_focus_alone_picks_nothing() {
        rows(form().listNC).setFocus(Qt::TabFocusReason);
        QCOMPARE(form().focused(), static_cast<Control*>(&form().listNC));
        QCOMPARE(form().listNC.row(), -1);
        t_->key(Qt::Key_Down);
        QCOMPARE(form().listNC.row(), 0);
    }

    void default_and_picked_players_are_told_apart() {
        t_->double_click_row(form().listNC, 6);
        const auto& note = rows(form().listNC).note;
        QVERIFY(note(6).marked && !note(6).muted);
        QVERIFY(note(3).muted && !note(3).marked);
        QVERIFY(!note(5).muted && !note(5).marked);
        QVERIFY(note(5).note.startsWith(QStringLiteral("Scotland")));
    }

    void a_list_that_is_read_again_stays_where_it_was_scrolled() {
        t_->select_tab(tab::players);
        t_->binder().act([this] { user::pick(form(), form().cboSeqSQ, 10); });
        t_->pick_row(form().listDat, 20);
        const int place = rows(form().listDat).verticalScrollBar()->value();
        QVERIFY(place > 0);
        t_->click(form().cmdSaveCar);
        QCOMPARE(form().listDat.row(), 20);
        QCOMPARE(rows(form().listDat).verticalScrollBar()->value(), place);
    }

    void names_and_numbers_scroll_together() {
        t_->select_tab(tab::numbers);
        // Rows too high for the list.
        QFont large = QApplication::font();
        large.setPixelSize(40);
        rows(form().ListName).setFont(large);
        rows(form().ListNum).setFont(large);
        t_->binder().act([this] { user::pick(form(), form().cboSQNum, 10); });
        t_->pick_row(form().ListName, 22);
        QVERIFY(rows(form().ListName).verticalScrollBar()->value() > 0);
        QCOMPARE(rows(form().ListNum).verticalScrollBar()->value(), rows(form().ListName).verticalScrollBar()->value());
    }

private:
    using RowsView = app::RowsView;

    frmKalco& form() { return t_->form(); }
    RowsView& rows(const ListBox& list) { return t_->widget<RowsView>(list); }

    test::DemoHome home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestLists)
#include "test_lists.moc"
