#include <QApplication>
#include <QLabel>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/number_board.h"
#include "app/widgets/pitch_view.h"
#include "editor/window/user.h"

using namespace kalco;

/// The drawn widgets under the mouse and the keyboard: the pitch and the board of numbers.
class TestPitch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        t_ = std::make_unique<test::TestWindow>(home_);
        t_->select_tab(tab::formations);
        t_->binder().act([this] { user::pick(form(), form().cboSeqSQ2, 10); });
    }
    void cleanup() { t_.reset(); }

    void a_press_selects_the_marker() {
        t_->click(form().lblGioc(8));
        QCOMPARE(form().SelectedMarker, 8);
        QVERIFY(marker(8).selected());
        QVERIFY(!marker(7).selected());
        QVERIFY(t_->widget(form().cboRL).isEnabled());
        QCOMPARE(t_->widget<QLabel>(form().lblNameG).text().isEmpty(), false);
    }

    void the_model_decides_where_a_marker_stands() {
        for (const QSize size : {QSize(1100, 720), QSize(1500, 950), QSize(900, 600)}) {
            t_->window.resize(size);
            QApplication::processEvents();
            for (int k = first_marker; k <= last_marker; ++k) {
                const QPoint units = pitch().units_at(marker(k).pos());
                constexpr int pixel = 12;
                QVERIFY(std::abs(units.x() - form().lblGioc(k).left()) <= pixel);
                QVERIFY(std::abs(units.y() - form().lblGioc(k).top()) <= pixel);
                QVERIFY(pitch().rect().contains(marker(k).geometry()));
            }
        }
    }

    void arrow_keys_press_the_arrow_buttons() {
        t_->click(form().lblGioc(8));
        QVERIFY(pitch().hasFocus());
        const int left = form().lblGioc(8).left();
        const int top = form().lblGioc(8).top();
        const int x = form().FormationX[8];
        t_->key(Qt::Key_Right);
        t_->key(Qt::Key_Right);
        t_->key(Qt::Key_Left);
        t_->key(Qt::Key_Up);
        QVERIFY(pitch().hasFocus());
        QCOMPARE(form().lblGioc(8).left(), left + 102);
        QCOMPARE(form().lblGioc(8).top(), top - 31);
        QCOMPARE(form().FormationX[8], x + 1);
        QCOMPARE(form().focused(), static_cast<Control*>(&form().cmdUp));
    }

    void arrow_keys_do_nothing_before_a_marker_is_chosen() {
        pitch().setFocus();
        t_->key(Qt::Key_Right);
        for (int k = first_marker; k <= last_marker; ++k) QCOMPARE(form().lblGioc(k).left(), marker(k).left_units());
        QVERIFY(t_->widget<QLabel>(form().lblNameG).text().isEmpty());
        QVERIFY(mark("viewUnsavedPitch").isEmpty());
    }

    void dragging_steps_the_marker() {
        app::MarkerView& dragged = marker(8);
        const int left = form().lblGioc(8).left();
        const int x = form().FormationX[8];
        const int y = form().FormationY[8];
        const QPoint grip = dragged.rect().center();
        QTest::mousePress(&dragged, Qt::LeftButton, {}, grip);
        QTest::mouseMove(&dragged, grip + QPoint(-60, 24));
        QTest::mouseRelease(&dragged, Qt::LeftButton, {}, grip);
        const int steps = x - form().FormationX[8];
        QVERIFY(steps >= 3);
        QCOMPARE(form().lblGioc(8).left(), left - 102 * steps);
        QVERIFY(form().FormationY[8] > y);
        QCOMPARE(form().SelectedMarker, 8);
    }

    void dragging_out_of_the_pitch_stops_at_the_limits() {
        app::MarkerView& dragged = marker(8);
        QTest::mousePress(&dragged, Qt::LeftButton);
        QTest::mouseMove(&dragged, QPoint(3000, -3000));
        QTest::mouseRelease(&dragged, Qt::LeftButton);
        QVERIFY(form().lblGioc(8).left() >= 4819 && form().lblGioc(8).left() <= 4920);
        QVERIFY(form().lblGioc(8).top() <= 31 && form().lblGioc(8).top() >= 0);
    }

    void what_is_not_saved_is_marked_until_it_is() {
        QVERIFY(mark("viewUnsavedPitch").isEmpty());
        t_->click(form().lblGioc(8));
        t_->key(Qt::Key_Up);
        QVERIFY(!mark("viewUnsavedPitch").isEmpty());
        QVERIFY(mark("viewUnsavedBars").isEmpty());
        t_->click(form().cmdModifica);
        QVERIFY(mark("viewUnsavedPitch").isEmpty());
        t_->click(form().cmdPiu(2));
        QVERIFY(!mark("viewUnsavedBars").isEmpty());
        t_->click(form().cmdSalva);
        QVERIFY(mark("viewUnsavedBars").isEmpty());
    }

    void a_free_cell_of_the_board_types_its_number() {
        t_->select_tab(tab::numbers);
        t_->binder().act([this] { user::pick(form(), form().cboSQNum, 10); });
        t_->click(form().lblNum(31));
        QCOMPARE(form().txtNumMod.text(), std::string());
        t_->pick_row(form().ListName, 4);
        t_->click(form().lblNum(31));
        QCOMPARE(form().txtNumMod.text(), std::string("31"));
        QVERIFY(!form().lblNum(31).in_use());
        const std::string old_number = form().ListNum.item(4);
        t_->click(form().lblNum(std::stoi(form().ListNum.item(5))));
        QCOMPARE(form().txtNumMod.text(), std::string("31"));
        QVERIFY(mark("viewUnsavedNumbers").isEmpty());
        t_->click(form().cmdModNum);
        QCOMPARE(form().ListNum.item(4), std::string("31"));
        QVERIFY(t_->widget<app::NumberCellView>(form().lblNum(31)).in_use());
        QVERIFY(!mark("viewUnsavedNumbers").isEmpty());
        t_->click(form().cmdSaveNum);
        QVERIFY(mark("viewUnsavedNumbers").isEmpty());
        QVERIFY(old_number != "31");
    }

private:
    frmKalco& form() { return t_->form(); }
    app::MarkerView& marker(int k) { return t_->widget<app::MarkerView>(form().lblGioc(k)); }
    app::PitchView& pitch() { return *t_->window.findChild<app::PitchView*>(QStringLiteral("viewPitch")); }
    QString mark(const char* name) { return t_->window.findChild<QLabel*>(QString::fromLatin1(name))->text(); }

    test::DemoHome home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestPitch)
#include "test_pitch.moc"
