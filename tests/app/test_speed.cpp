#include <QApplication>
#include <QGroupBox>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QProgressBar>
#include <QStyleOptionTabWidgetFrame>
#include <QtTest>
#include <cstdlib>

#include "app/quick_text.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/rows_view.h"
#include "editor/window/user.h"

using namespace kalco;

namespace {

constexpr QRect area(7, 5, 150, 31);

template <typename Draw>
QImage drawn(qreal ratio, const QFont& font, Draw draw) {
    QImage image(QSize(180, 50) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(Qt::black);
    draw(painter);
    return image;
}

QRect inked(const QImage& image) {
    QRect result;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) < 200) result |= QRect(x, y, 1, 1);
        }
    }
    return result;
}

/// Counts the paintings of the widgets of a window.
class Paintings : public QObject {
public:
    Paintings() { qApp->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++count;
        return false;
    }
};

}  // namespace

/// What is kept to be fast looks as it did, and nothing is painted twice.
class TestSpeed : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void kept_text_stands_where_qt_draws_it_data() {
        QTest::addColumn<int>("flags");
        QTest::addColumn<QString>("text");
        QTest::addColumn<qreal>("ratio");
        const int mnemonic = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            const auto row = [ratio](const char* name, int flags, const QString& text) {
                QTest::addRow("%s at %.1f", name, ratio) << flags << text << ratio;
            };
            row("left", Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Abilità"));
            row("right", Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("CO · 08"));
            row("centre", Qt::AlignCenter, QStringLiteral("99"));
            row("bottom", Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("Wagner"));
            row("two lines", Qt::AlignCenter, QStringLiteral("Punizioni\nCorte"));
            row("cut", Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Importa Squadra Default ML, di nuovo"));
            row("hidden key", Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic, QStringLiteral("&Nome && no"));
            row("doubled", mnemonic, QStringLiteral("Squadre && Giocatori"));
        }
    }

    void kept_text_stands_where_qt_draws_it() {
        QFETCH(int, flags);
        QFETCH(QString, text);
        QFETCH(qreal, ratio);
        QFont bold = QApplication::font();
        bold.setBold(true);
        for (const QFont& font : {QApplication::font(), bold}) {
            const QImage expected = drawn(ratio, font, [&](QPainter& p) { p.drawText(area, flags, text); });
            for (int again = 0; again < 2; ++again) {
                const QImage shown = drawn(ratio, font, [&](QPainter& p) { app::draw_text(p, area, flags, text); });
                // Between whole pixels Qt rounds the two to different sides.
                if (ratio == 1) QCOMPARE(shown, expected);
                const QRect off = inked(shown);
                const QRect wanted = inked(expected);
                QVERIFY((off.topLeft() - wanted.topLeft()).manhattanLength() <= 2);
                QVERIFY(std::abs(off.width() - wanted.width()) <= 1 && off.height() == wanted.height());
            }
        }
    }

    void an_access_key_is_underlined() {
        const int flags = Qt::AlignLeft | Qt::AlignVCenter;
        const QString text = QStringLiteral("Nome &tabelle");
        const QFont font = QApplication::font();
        const auto draw = [&](int extra) {
            return drawn(1, font, [&](QPainter& p) { app::draw_text(p, area, flags | extra, text); });
        };
        const QImage plain = draw(Qt::TextHideMnemonic);
        const QImage keyed = draw(Qt::TextShowMnemonic);
        QRect line;
        for (int y = 0; y < plain.height(); ++y) {
            for (int x = 0; x < plain.width(); ++x) {
                if (plain.pixel(x, y) != keyed.pixel(x, y)) line |= QRect(x, y, 1, 1);
            }
        }
        const QFontMetrics metrics(font);
        const int before = area.left() + metrics.horizontalAdvance(QStringLiteral("Nome "));
        QVERIFY(line.isValid() && line.height() <= 2);
        QVERIFY(line.left() >= before && line.right() <= before + metrics.horizontalAdvance(u't'));
    }

    void a_page_is_painted_once_when_its_tab_is_chosen() {
        test::TestWindow t(home_);
        for (int tab = tab::numbers; tab >= tab::players; --tab) {
            t.binder().act([&] { user::select_tab(t.form(), tab); });
            t.window.repaint();
            Paintings after;
            QApplication::processEvents();
            // Not more than a cursor or a field that got the keyboard.
            QVERIFY2(after.count <= 5, qPrintable(QString::number(after.count)));
        }
    }

    void the_count_of_picks_paints_nothing_before_all_is_told() {
        test::TestWindow t(home_);
        t.select_tab(tab::league);
        auto* const picks = t.window.findChild<QProgressBar*>(QStringLiteral("viewPicks"));
        user::pick(t.form(), t.form().cboSqNC, 1);
        QApplication::processEvents();
        Paintings during;
        t.binder().act([&] {
            user::pick(t.form(), t.form().listNC, 0);
            user::press_again(t.form(), t.form().listNC);
        });
        QCOMPARE(picks->value(), 1);
        QCOMPARE(during.count, 0);
    }

    void the_page_has_the_colours_of_the_style_below() {
        QStyleOptionTabWidgetFrame frame;
        frame.rect = QRect(0, 0, 160, 40);
        frame.palette = QApplication::palette();
        frame.state = QStyle::State_Enabled | QStyle::State_Active;
        const QProxyStyle fusion(QStringLiteral("Fusion"));
        const auto paint = [&frame](const QStyle& style) {
            return drawn(1, QApplication::font(),
                         [&](QPainter& p) { style.drawPrimitive(QStyle::PE_FrameTabWidget, &frame, &p); });
        };
        const QImage expected = paint(fusion);
        const QImage shown = paint(*QApplication::style());
        for (int y = 0; y < 40; ++y) QCOMPARE(shown.pixelColor(80, y), expected.pixelColor(80, y));
        for (int x = 0; x < 160; ++x) QCOMPARE(shown.pixelColor(x, 20), expected.pixelColor(x, 20));
    }

    void a_page_on_a_dark_window_is_as_dark() {
        QStyleOptionTabWidgetFrame frame;
        frame.rect = QRect(0, 0, 160, 40);
        frame.palette =
            QPalette(QColor(0xdf, 0xe1, 0xe5), QColor(0x3a, 0x3d, 0x41), Qt::white, Qt::black, Qt::gray,
                     QColor(0xdf, 0xe1, 0xe5), Qt::white, QColor(0x1e, 0x1f, 0x22), QColor(0x2b, 0x2d, 0x30));
        frame.state = QStyle::State_Enabled | QStyle::State_Active;
        const QImage shown = drawn(1, QApplication::font(), [&frame](QPainter& p) {
            QApplication::style()->drawPrimitive(QStyle::PE_FrameTabWidget, &frame, &p);
        });
        QCOMPARE(shown.pixelColor(80, 20), frame.palette.color(QPalette::Window));
    }

    void a_list_shows_that_it_has_the_keyboard() {
        test::TestWindow t(home_);
        t.binder().act([&] { user::pick(t.form(), t.form().cboSeqSQ, 10); });
        auto& roster = t.widget<app::RowsView>(t.form().listDat);
        const QColor ring = roster.palette().color(QPalette::Highlight);
        const auto edge = [&roster] { return roster.grab().toImage().pixelColor(0, roster.height() / 2); };
        QVERIFY(edge() != ring);
        roster.setFocus(Qt::TabFocusReason);
        QCOMPARE(edge(), ring);
        t.widget(t.form().cmdSaveCar).setFocus(Qt::TabFocusReason);
        QVERIFY(edge() != ring);
    }

private:
    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestSpeed)
#include "test_speed.moc"
