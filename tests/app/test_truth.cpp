#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QtTest>

#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/widgets/notice.h"
#include "app/widgets/number_board.h"
#include "app/widgets/rows_view.h"
#include "editor/window/user.h"

using namespace kalco;

/// The window says what a button would do and what is not as it looks.
class TestTruth : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void init() {
        home_ = std::make_unique<test::DemoHome>();
        t_ = std::make_unique<test::TestWindow>(*home_);
    }
    void cleanup() {
        t_.reset();
        home_.reset();
    }

    void numbers_of_another_team_are_told_before_they_are_written() {
        t_->select_tab(tab::numbers);
        pick(form().cboSQNum, 3);
        t_->pick_row(form().ListName, 2);
        QCOMPARE(label("viewWouldWrite"), QStringLiteral("Non scriverebbe niente: prima «Modifica Numero»"));
        change_number(2, QStringLiteral("31"));
        QVERIFY(label("viewWouldWrite").isEmpty());
        pick(form().cboSQNum, 10);
        QVERIFY(label("viewWouldWrite").isEmpty());
        t_->pick_row(form().ListName, 0);
        QCOMPARE(label("viewWouldWrite"),
                 QStringLiteral("Scriverebbe gli ultimi numeri preparati (England), non quelli mostrati"));
        change_number(0, QStringLiteral("30"));
        QVERIFY(label("viewWouldWrite").isEmpty());
    }

    void no_button_moves_when_something_is_told() {
        pick(form().cboSeqSQ, 10);
        const auto place = [this](const Control& control) {
            QApplication::processEvents();
            const QWidget& widget = t_->widget(control);
            return QRect(widget.mapTo(&t_->window, QPoint()), widget.size());
        };
        const QRect save = place(form().cmdSaveCar);
        t_->type(form().txtName, QStringLiteral("Rossi"));
        QVERIFY(!label("viewUnsavedPlayer").isEmpty());
        QCOMPARE(place(form().cmdSaveCar), save);

        t_->select_tab(tab::numbers);
        pick(form().cboSQNum, 3);
        const QRect change = place(form().cmdModNum);
        t_->pick_row(form().ListName, 2);
        QVERIFY(!label("viewWouldWrite").isEmpty());
        QCOMPARE(place(form().cmdModNum), change);
    }

    void an_image_that_is_not_there_is_told_with_the_reason() {
        test::TestWindow closed(home_->path() + "/none.bin", home_->path());
        const auto& notice = *closed.window.findChild<app::Notice*>(QStringLiteral("viewImageNotice"));
        QVERIFY(notice.isVisible());
        QVERIFY(notice.text().startsWith(QStringLiteral("Immagine non aperta: il file non c'è.")));
        QCOMPARE(closed.window.windowTitle(), QStringLiteral("none.bin (non aperta) – Kalco"));
        const QWidget& combo = closed.widget(closed.form().cboSeqSQ);
        QCOMPARE(combo.palette().color(QPalette::Active, QPalette::ButtonText),
                 QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText));
        // The transfers need no image.
        const QWidget& file = closed.widget(closed.form().cmdTeam1);
        QCOMPARE(file.palette().color(QPalette::Active, QPalette::ButtonText),
                 QApplication::palette().color(QPalette::Active, QPalette::ButtonText));
        closed.platform.choices.push_back(home_->image() + "x");
        QVERIFY(QFile::copy(QString::fromStdString(home_->image()), QString::fromStdString(home_->image() + "x")));
        closed.click(closed.form().cmdOpen);
        QVERIFY(!notice.isVisible());
        QCOMPARE(closed.window.windowTitle(), QStringLiteral("demo.binx – Kalco"));
        QCOMPARE(combo.palette().color(QPalette::Active, QPalette::ButtonText),
                 QApplication::palette().color(QPalette::Active, QPalette::ButtonText));
    }

    void a_folder_is_told_as_one() {
        QVERIFY(QDir(QString::fromStdString(home_->path())).mkdir(QStringLiteral("folder.bin")));
        test::TestWindow closed(home_->path() + "/folder.bin", home_->path());
        const auto& notice = *closed.window.findChild<app::Notice*>(QStringLiteral("viewImageNotice"));
        QVERIFY(notice.text().contains(QStringLiteral("è una cartella")));
    }

    void the_lost_path_is_told_with_its_remedy() {
        const auto& notice = *t_->window.findChild<app::Notice*>(QStringLiteral("viewImageNotice"));
        QVERIFY(!notice.isVisible());
        t_->platform.choices.push_back("");
        t_->click(form().cmdOpen);
        QVERIFY(notice.isVisible());
        QVERIFY(notice.text().contains(QStringLiteral("demo.bin")));
        QCOMPARE(notice.remedy().text(), QStringLiteral("Riapri demo.bin"));
        QString wanted;
        connect(&t_->window, &app::KalcoWindow::image_wanted, this, [&](const QString& path) { wanted = path; });
        QTest::mouseClick(&notice.remedy(), Qt::LeftButton);
        QCOMPARE(wanted, QString::fromStdString(home_->image()));
        t_->platform.choices.push_back(home_->image());
        t_->click(form().cmdOpen);
        QVERIFY(!notice.isVisible());
    }

    void the_saved_picks_leave_the_keyboard_on_their_tab() {
        import_no_contact();
        t_->click(form().cmdSaveNC);
        QCOMPARE(t_->platform.messages.back().text, std::string("Salvataggio effettuato con successo"));
        QVERIFY(t_->widget(form().cboSqNC).hasFocus());
    }

    /// While a box is shown, no widget of the window has the keyboard; where it goes afterwards is settled then.
    void the_saved_picks_leave_the_keyboard_on_their_tab_behind_a_box_too() {
        import_no_contact();
        t_->widget(form().cmdSaveNC).setFocus();
        QDialog box(&t_->window);
        box.show();
        box.activateWindow();
        QApplication::processEvents();
        t_->binder().act([&] { user::click(form(), form().cmdSaveNC); }, app::Binder::Focus::stay);
        QCOMPARE(t_->window.focusWidget(), &t_->widget(form().cboSqNC));
    }

    void a_file_for_the_picks_is_no_change_of_the_shown_names() {
        pick(form().cboSeqSQ, 10);
        const std::string file = home_->path() + "/Export/" + form().txtSQ.text() + ".DAT";
        t_->click(form().cmdExp);
        pick(form().cboSeqSQ, 12);
        const std::string shown = form().txtSqDec.text();
        pick_23();
        t_->platform.choices.push_back(file);
        t_->click(form().cmdImpNC);
        QVERIFY(form().txtSqDec.text() != shown);
        t_->click(form().cmdSaveNC);
        const QString told = t_->window.findChild<QLabel*>(QStringLiteral("viewStatus"))->text();
        QVERIFY2(told.startsWith(QStringLiteral("Salvato: ")) && !told.contains(QStringLiteral("non salvati")),
                 qPrintable(told));
    }

    void the_table_says_whose_takers_it_shows() {
        t_->select_tab(tab::kickers);
        QCOMPARE(label("viewTakersOf"), QStringLiteral("Scegli una squadra"));
        pick(form().cboSquadra, 10);
        QCOMPARE(label("viewTakersOf"), QStringLiteral("Tiratori e capitano di Italy"));
        t_->pick_row(form().listAtt, 3);
        QCOMPARE(form().listAtt.row(), 3);
        QCOMPARE(label("viewTakersOf"), QStringLiteral("Tiratori e capitano di Italy"));
        const auto& teams = t_->widget<app::RowsView>(form().listAtt);
        QVERIFY(teams.only_list());
        QVERIFY(teams.note(10).marked && !teams.note(3).marked);
    }

    void the_names_of_the_takers_look_like_labels() {
        for (int player = 1; player <= 11; ++player) {
            const auto& name = t_->widget<QLineEdit>(form().txtNM(player));
            QVERIFY(!name.hasFrame());
            QCOMPARE(name.palette().color(QPalette::Base).alpha(), 0);
        }
    }

    void enter_removes_no_pick_and_delete_does() {
        pick_23();
        QVERIFY(!t_->widget(form().listNC).isEnabled());
        QVERIFY(t_->widget(form().listAppNameNC).hasFocus());
        t_->key(Qt::Key_Down);
        t_->key(Qt::Key_Return);
        t_->key(Qt::Key_Enter);
        QCOMPARE(form().listAppNameNC.count(), 23);
        QVERIFY(label("viewTooFew").isEmpty());
        t_->key(Qt::Key_Delete);
        QCOMPARE(form().listAppNameNC.count(), 22);
    }

    void too_few_picks_are_told_while_the_import_is_possible() {
        t_->select_tab(tab::league);
        pick(form().cboSqNC, 4);
        t_->double_click_row(form().listNC, 6);
        QVERIFY(label("viewTooFew").isEmpty());
        t_->click(form().cmdNuevo);
        pick_23();
        t_->double_click_row(form().listAppNameNC, 2);
        QVERIFY(form().cmdImpNC.enabled());
        QVERIFY(label("viewTooFew").startsWith(QStringLiteral("Solo 22 di 23")));
        QVERIFY(t_->window.findChild<QLabel*>(QStringLiteral("viewTooFew"))->isVisible());
    }

    void the_pending_line_names_the_button_of_its_tab() {
        auto& line = *t_->window.findChild<app::Notice*>(QStringLiteral("viewPending"));
        pick(form().cboSeqSQ, 10);
        t_->platform.choices.push_back("");
        t_->click(form().cmdImp);
        QVERIFY(line.isVisible() && line.text().contains(QStringLiteral("«Salva», che scrive i giocatori in lista in "
                                                                        "Italy")));
        t_->select_tab(tab::kickers);
        QVERIFY(line.text().contains(QStringLiteral("in «Squadre & Giocatori» non si preme «Salva»")));
        t_->select_tab(tab::players);
        t_->click(form().cmdNew);
        QVERIFY(!line.isVisible());
    }

    void the_pending_picks_name_their_own_button_until_they_are_saved() {
        auto& line = *t_->window.findChild<app::Notice*>(QStringLiteral("viewPending"));
        import_no_contact();
        QVERIFY(line.text().contains(QStringLiteral("«Salva Modifica»")));
        QVERIFY(line.text().contains(QStringLiteral("23 scelti")));
        t_->click(form().cmdSaveNC);
        QVERIFY(!line.isVisible());
    }

    void the_pending_default_team_names_its_target() {
        auto& line = *t_->window.findChild<app::Notice*>(QStringLiteral("viewPending"));
        pick(form().cboSeqSQ, 95);
        t_->platform.choices.push_back("");
        t_->click(form().cmdImpML);
        QVERIFY(line.text().contains(QStringLiteral("Squadra Default ML")));
        // It outlives the choice of another team, whose players it would write there.
        pick(form().cboSeqSQ, 10);
        QVERIFY(line.isVisible() && line.text().contains(QStringLiteral("Squadra Default ML")));
    }

    void only_images_can_be_dropped() {
        for (const auto& [name, taken] : {std::pair{"/x/a.bin", true},
                                          {"/x/A.IMG", true},
                                          {"/x/a.iso", false},
                                          {"/x/bin", false},
                                          {"/x/a.bin.txt", false}}) {
            QMimeData data;
            data.setUrls({QUrl::fromLocalFile(QString::fromLatin1(name))});
            QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&t_->window, &enter);
            QCOMPARE(enter.isAccepted(), taken);
            QString dropped;
            const auto link = connect(&t_->window, &app::KalcoWindow::image_wanted, this,
                                      [&](const QString& path) { dropped = path; });
            QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&t_->window, &drop);
            QCOMPARE(!dropped.isEmpty(), taken);
            disconnect(link);
        }
        QMimeData two;
        two.setUrls({QUrl::fromLocalFile(QStringLiteral("/x/a.bin")), QUrl::fromLocalFile(QStringLiteral("/x/b.bin"))});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &two, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&t_->window, &enter);
        QVERIFY(!enter.isAccepted());
    }

    void the_board_tells_what_a_nation_cannot_have_and_who_wears_a_number() {
        t_->select_tab(tab::numbers);
        pick(form().cboSQNum, 10);
        QVERIFY(cell(32).possible() && !cell(33).possible());
        QVERIFY(cell(33).toolTip().contains(QStringLiteral("da 1 a 32")));
        const int number = std::stoi(form().ListNum.item(4));
        QCOMPARE(cell(number).toolTip(),
                 QStringLiteral("%1: %2").arg(number).arg(QString::fromLatin1(form().ListName.item(4).c_str())));
        t_->pick_row(form().ListName, 4);
        t_->click(form().lblNum(45));
        QVERIFY(form().txtNumMod.text() != "45");
        pick(form().cboSQNum, 60);
        QVERIFY(cell(33).possible());
        QVERIFY(!cell(33).toolTip().contains(QStringLiteral("da 1 a 32")));
    }

private:
    frmKalco& form() { return t_->form(); }
    QString label(const char* name) { return t_->window.findChild<QLabel*>(QString::fromLatin1(name))->text(); }
    app::NumberCellView& cell(int number) { return t_->widget<app::NumberCellView>(form().lblNum(number)); }

    void pick(Control& control, int row) {
        t_->binder().act([&] { user::pick(form(), control, row); });
    }

    void change_number(int row, const QString& number) {
        t_->pick_row(form().ListName, row);
        t_->type(form().txtNumMod, number);
        t_->click(form().cmdModNum);
    }

    /// With the keyboard: one down, one Enter. The default players take none.
    void pick_23() {
        t_->select_tab(tab::league);
        pick(form().cboSqNC, 4);
        t_->pick_row(form().listNC, 0);
        for (int i = 0; i < 60 && form().listAppNameNC.count() < 23; ++i) {
            t_->key(Qt::Key_Return);
            if (form().listNC.enabled()) t_->key(Qt::Key_Down);
        }
        QCOMPARE(form().listAppNameNC.count(), 23);
    }

    void import_no_contact() {
        pick(form().cboSeqSQ, 10);
        const std::string file = home_->path() + "/Export/" + form().txtSQ.text() + ".DAT";
        t_->click(form().cmdExp);
        t_->click(form().cmdNew);
        pick_23();
        t_->platform.choices.push_back(file);
        t_->click(form().cmdImpNC);
    }

    std::unique_ptr<test::DemoHome> home_;
    std::unique_ptr<test::TestWindow> t_;
};

KALCO_WINDOW_TEST(TestTruth)
#include "test_truth.moc"
