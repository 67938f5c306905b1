#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/text.h"
#include "app/widgets/pitch_names.h"
#include "app/widgets/pitch_view.h"
#include "app/widgets/rows_view.h"
#include "editor/window/user.h"

using namespace kalco;

/// What stands beside the names: roles and numbers, links, names on the pitch, lengths.
class TestRoster : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() { t_ = std::make_unique<test::TestWindow>(home_); }
    void cleanup() { t_.reset(); }

    void a_row_shows_the_role_and_the_shirt_number() {
        pick(form().cboSeqSQ, 10);
        const auto& roster = t_->widget<app::RowsView>(form().listDat);
        t_->pick_row(form().listDat, 9);
        QCOMPARE(form().cboRuolo.text(), std::string("Attaccante Laterale"));
        t_->select_tab(tab::numbers);
        pick(form().cboSQNum, 10);
        const QString number = app::qt_text(form().ListNum.item(9));
        t_->select_tab(tab::players);
        QCOMPARE(roster.note(9).note, QStringLiteral("AL · ") + number);
        QCOMPARE(roster.note(0).note.section(QStringLiteral(" · "), 0, 0), QStringLiteral("P"));
        // A team without shirt numbers of its own, and the pool.
        pick(form().cboSeqSQ, 54);
        QVERIFY(!roster.note(0).note.isEmpty() && !roster.note(0).note.contains(u'·'));
        pick(form().cboSeqSQ, 95);
        QVERIFY(!roster.note(300).note.contains(u'·'));
    }

    void a_club_shows_whom_it_plays_with() {
        t_->select_tab(tab::league);
        QCOMPARE(label("viewLinks"), QStringLiteral("Scegli un club per vedere con chi gioca ora"));
        t_->pick_row(form().listDefault, 2);
        QVERIFY(label("viewLinks").startsWith(QStringLiteral("Chelsea gioca con: ")));
        t_->pick_row(form().listSQLink, 10);
        t_->click(form().cmdLink);
        QCOMPARE(label("viewLinks"), QStringLiteral("Chelsea gioca con: Italy"));
    }

    void the_names_stand_below_the_shirts_where_there_is_room() {
        t_->window.resize(1400, 900);
        pick(form().cboSeqSQ, 10);
        const std::vector<std::string> roster = form().listDat.items();
        t_->select_tab(tab::formations);
        pick(form().cboSeqSQ2, 10);
        const auto& names = pitch().names().placed();
        QVERIFY(names.size() >= 8 && names.size() <= 11);
        for (const auto& placed : names) {
            const auto found = std::find(roster.begin(), roster.begin() + 11, app::model_text(placed.name));
            QVERIFY(found != roster.begin() + 11);
            const int place = static_cast<int>(found - roster.begin()) + 1;
            if (place == 1) continue;
            const QRect shirt = t_->widget(form().lblGioc(place)).geometry();
            QVERIFY(std::abs(placed.area.top() - shirt.bottom()) <= 2);
            QVERIFY(std::abs(placed.area.center().x() - shirt.center().x()) <= 40);
            for (const auto& other : names) QVERIFY(&other == &placed || !other.area.intersects(placed.area));
        }
        t_->window.resize(500, 400);
        QApplication::processEvents();
        QVERIFY(pitch().names().placed().empty());
    }

    void a_clubs_names_are_those_of_its_links() {
        t_->window.resize(1400, 900);
        t_->select_tab(tab::numbers);
        pick(form().cboSQNum, 60);
        const std::vector<std::string> linked = form().ListName.items();
        t_->select_tab(tab::formations);
        pick(form().cboSeqSQ2, 60);
        QVERIFY(!pitch().names().placed().empty());
        for (const auto& placed : pitch().names().placed()) {
            const auto end = linked.begin() + 11;
            QVERIFY(std::find(linked.begin(), end, app::model_text(placed.name)) != end);
        }
    }

    void the_name_follows_its_shirt() {
        t_->window.resize(1400, 900);
        t_->select_tab(tab::formations);
        pick(form().cboSeqSQ2, 10);
        t_->click(form().lblGioc(8));
        const QString name = app::qt_text(form().lblNameG.caption()).trimmed();
        const QRect before = area_of(name);
        QVERIFY(!before.isEmpty());
        t_->click(form().cmdDown);
        QVERIFY(area_of(name).top() > before.top());
    }

    void lengths_are_counted() {
        QVERIFY(!counter("txtName").isVisible());
        pick(form().cboSeqSQ, 10);
        QCOMPARE(counter("txtSqShort").text(), QStringLiteral("3/3"));
        QCOMPARE(counter("txtSqHEX").text(), QStringLiteral("5/5"));
        QVERIFY(counter("txtName").text().endsWith(QStringLiteral("/10")));
        t_->type(form().txtName, QStringLiteral("Abc"));
        QCOMPARE(counter("txtName").text(), QStringLiteral("3/10"));
        QVERIFY(counter("txtName").isVisible());
        // The text keeps clear of the count.
        const auto& field = t_->widget<QLineEdit>(form().txtName);
        QVERIFY(field.textMargins().right() >= counter("txtName").width());
        QVERIFY(field.rect().contains(counter("txtName").geometry()));
        t_->select_tab(tab::league);
        t_->pick_row(form().listDefault, 0);
        t_->type(form().txtNmLgML, QStringLiteral("Abcdefg"));
        QCOMPARE(counter("txtNmLgML").text(), QStringLiteral("7/5"));
        QCOMPARE(counter("txtNmShML").text(), QStringLiteral("0/3"));
    }

private:
    frmKalco& form() { return t_->form(); }
    QString label(const char* name) { return t_->window.findChild<QLabel*>(QString::fromLatin1(name))->text(); }
    QLabel& counter(const char* field) {
        return *t_->window.findChild<QLabel*>(QStringLiteral("viewLength_") + QString::fromLatin1(field));
    }
    app::PitchView& pitch() { return *t_->window.findChild<app::PitchView*>(QStringLiteral("viewPitch")); }

    QRect area_of(const QString& name) {
        for (const auto& placed : pitch().names().placed()) {
            if (placed.name == name) return placed.area;
        }
        return {};
    }

    void pick(Control& control, int row) {
        t_->binder().act([&] { user::pick(form(), control, row); });
    }

    test::DemoHome home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestRoster)
#include "test_roster.moc"
