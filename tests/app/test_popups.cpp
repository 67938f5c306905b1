#include <QAbstractItemView>
#include <QApplication>
#include <QScrollBar>
#include <QtTest>

#include "app/pictures.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/pick_combo.h"
#include "editor/window/user.h"

using namespace kalco;

/// The lists below the combo boxes.
class TestPopups : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        t_ = std::make_unique<test::TestWindow>(home_);
        t_->binder().act([this] { user::pick(form(), form().cboSeqSQ, 10); });
    }
    void cleanup() { t_.reset(); }

    void a_long_list_shows_20_rows_and_a_scroll_bar() {
        app::PickCombo& combo = open(form().cboSeqSQ);
        const QAbstractItemView& rows = *combo.view();
        const int height = rows.visualRect(rows.model()->index(0, 0)).height();
        QVERIFY(height > 0);
        QVERIFY(rows.viewport()->height() <= 20 * height + height / 2);
        QVERIFY(rows.verticalScrollBar()->isVisible());
        QVERIFY(rows.verticalScrollBar()->maximum() > 0);
        combo.hidePopup();
    }

    void a_short_list_needs_no_scroll_bar() {
        app::PickCombo& combo = open(form().cboPiede);
        QVERIFY(!combo.view()->verticalScrollBar()->isVisible());
        combo.hidePopup();
    }

    void typing_in_the_list_finds_a_row() {
        app::PickCombo& combo = open(form().cboSeqSQ);
        QTest::keyClicks(combo.view(), QStringLiteral("spa"));
        QCOMPARE(combo.view()->currentIndex().data().toString(), QStringLiteral("Spain"));
        QTest::keyClick(combo.view(), Qt::Key_Return);
        QCOMPARE(form().cboSeqSQ.text(), std::string("Spain"));
    }

    void typing_in_the_field_finds_a_row() {
        app::PickCombo& combo = t_->widget<app::PickCombo>(form().cboSeqSQ);
        combo.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&combo, QStringLiteral("bra"));
        QCOMPARE(form().cboSeqSQ.text(), std::string("Brazil"));
    }

    void an_access_key_that_nothing_has_searches_nothing() {
        app::PickCombo& combo = t_->widget<app::PickCombo>(form().cboSeqSQ);
        combo.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&combo, Qt::Key_S, Qt::AltModifier);
        QTest::keyClick(&combo, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(form().cboSeqSQ.row(), 10);
        QWidget& list = t_->widget(form().listDat);
        list.setFocus(Qt::TabFocusReason);
        const int row = form().listDat.row();
        for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key) {
            QTest::sendKeyEvent(QTest::Click, &list, static_cast<Qt::Key>(key), QString(QChar(key)).toLower(),
                                Qt::AltModifier);
        }
        QCOMPARE(form().listDat.row(), row);
    }

    void rows_of_looks_show_their_drawings() {
        for (const auto& [control, pattern] : {std::pair{&form().cboCapelli, "*"},
                                               {&form().cboColCap, "*"},
                                               {&form().cboStlBar, "**"},
                                               {&form().cboColBar, "**1"},
                                               {&form().cboScarpa, "*S"}}) {
            app::PickCombo& combo = open(*control);
            QCOMPARE(combo.property("pictures").toString(), QString::fromLatin1(pattern));
            int drawn = 0;
            for (int row = 0; row < combo.count(); ++row) {
                const QString name = combo.property("pictures").toString().replace(u'*', combo.itemText(row));
                drawn += app::picture(name, 28, 1).isNull() ? 0 : 1;
            }
            QVERIFY2(drawn >= combo.count() - 1, pattern);
            // The drawing stands left of the text: the row's left end is not plain.
            combo.view()->scrollToTop();
            const QRect row = combo.view()->visualRect(combo.view()->model()->index(1, 0));
            const QImage shown =
                combo.view()->viewport()->grab(QRect(row.topLeft(), QSize(34, row.height()))).toImage();
            QSet<QRgb> colours;
            for (int x = 0; x < shown.width(); ++x) {
                for (int y = 0; y < shown.height(); ++y) colours.insert(shown.pixel(x, y));
            }
            QVERIFY2(colours.size() > 10, pattern);
            combo.hidePopup();
        }
    }

private:
    frmKalco& form() { return t_->form(); }

    app::PickCombo& open(const ComboBox& control) {
        auto& combo = t_->widget<app::PickCombo>(control);
        QTest::mouseClick(&combo, Qt::LeftButton);
        QApplication::processEvents();
        return combo;
    }

    test::DemoHome home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestPopups)
#include "test_popups.moc"
