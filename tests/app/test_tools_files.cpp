#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QtTest>
#include <thread>

#include "app/support/dialogs.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"
#include "app/tools/job.h"
#include "app/tools/sectors/sectors_dialog.h"
#include "disc/image/opening.h"
#include "editor/window/user.h"
#include "support/faulty_files.h"
#include "work/repair.h"
#include "work/sheets/sheets.h"

using namespace kalco;

/// The safe copy, the sectors, the report, and the long work under them.
class TestToolsFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        test::prepare_application();
        QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "note_url");
    }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }
    void init() {
        home_ = std::make_unique<test::DemoHome>();
        opened_.clear();
    }

    void short_work_shows_no_box() {
        bool seen = false;
        QTimer::singleShot(0, this, [&seen] { seen = QApplication::activeModalWidget() != nullptr; });
        QVERIFY(app::run_job(nullptr, QStringLiteral("Lavoro"), [](app::Job& job) { job(1); }));
        QVERIFY(!seen);
    }

    void long_work_shows_how_far_it_is() {
        std::atomic<bool> seen = false;
        test::Answers answers;
        answers.then<QDialog>([&seen](QDialog& box) {
            QTRY_COMPARE(box.findChild<QProgressBar*>()->value(), 300);
            seen = true;
        });
        QVERIFY(app::run_job(nullptr, QStringLiteral("Lavoro"), [&seen](app::Job& job) {
            job.set_total(10);
            job(3);
            while (!seen) std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }));
        QVERIFY(answers.all_given());
    }

    void esc_and_the_button_cancel_it() {
        for (const bool by_key : {true, false}) {
            test::Answers answers;
            answers.then<QDialog>([by_key](QDialog& box) {
                if (by_key) QTest::keyClick(&box, Qt::Key_Escape);
                if (!by_key) QTest::mouseClick(box.findChild<QPushButton*>(), Qt::LeftButton);
                QVERIFY(box.isVisible());
            });
            QVERIFY(!app::run_job(nullptr, QStringLiteral("Lavoro"), [](app::Job& job) {
                for (int step = 0;; ++step) {
                    std::this_thread::sleep_for(std::chrono::milliseconds(5));
                    job(step);
                }
            }));
            QVERIFY(answers.all_given());
        }
    }

    void what_the_work_throws_is_thrown_on() {
        QVERIFY_THROWS_EXCEPTION(std::domain_error, app::run_job(nullptr, QStringLiteral("Lavoro"),
                                                                 [](app::Job&) { throw std::domain_error("x"); }));
    }

    void a_copy_is_the_image() {
        test::TestWindow t(*home_);
        const QString copy = beside("copia.bin");
        test::Answers answers;
        answers.choose(copy);
        test::choose_menu(t.window, QStringLiteral("File"), QStringLiteral("Copia di sicurezza"));
        QVERIFY(answers.all_given());
        QVERIFY(bytes_of(copy) == home_->image_bytes());
        QVERIFY(status(t).contains(QStringLiteral("copia.bin")));
        QVERIFY(!t.failure);
    }

    void a_cancelled_copy_writes_nothing() {
        test::TestWindow t(*home_);
        test::Answers answers;
        answers.cancel_file_dialog();
        test::choose_menu(t.window, QStringLiteral("File"), QStringLiteral("Copia di sicurezza"));
        QVERIFY(answers.all_given());
        QCOMPARE(QDir(QString::fromStdString(home_->path())).entryList({QStringLiteral("*.bin*")}).size(), 1);
    }

    void an_existing_file_is_replaced_only_when_asked() {
        test::TestWindow t(*home_);
        const QString copy = beside("copia.bin");
        put(copy, "mine");
        test::Answers answers;
        answers.choose(copy);
        answers.press(QStringLiteral("Annulla"));
        answers.cancel_file_dialog();
        test::choose_menu(t.window, QStringLiteral("File"), QStringLiteral("Copia di sicurezza"));
        QVERIFY(answers.all_given());
        QVERIFY(bytes_of(copy) == "mine");
        answers.choose(copy);
        answers.press(QStringLiteral("Sostituisci"));
        test::choose_menu(t.window, QStringLiteral("File"), QStringLiteral("Copia di sicurezza"));
        QVERIFY(answers.all_given());
        QVERIFY(bytes_of(copy) == home_->image_bytes());
    }

    void the_image_is_no_place_for_its_copy() {
        test::TestWindow t(*home_);
        const std::string before = home_->image_bytes();
        test::Answers answers;
        answers.choose(QString::fromStdString(home_->image()));
        answers.press(QStringLiteral("Sostituisci"));
        answers.press(QStringLiteral("OK"));
        test::choose_menu(t.window, QStringLiteral("File"), QStringLiteral("Copia di sicurezza"));
        QVERIFY(answers.all_given());
        QCOMPARE(answers.told().constLast(), QStringLiteral("La copia non è stata fatta: è l'immagine stessa."));
        QVERIFY(home_->image_bytes() == before);
    }

    void a_copy_where_nothing_can_be_written_is_told() {
        test::TestWindow t(*home_);
        test::Answers answers;
        answers.choose(QStringLiteral("/dev/null/copia.bin"));
        answers.press(QStringLiteral("OK"));
        test::choose_menu(t.window, QStringLiteral("File"), QStringLiteral("Copia di sicurezza"));
        QVERIFY(answers.all_given());
        QCOMPARE(answers.told().constLast(), QStringLiteral("La copia non è stata fatta: la cartella non c'è."));
    }

    void an_image_whose_path_is_lost_is_not_copied() {
        test::TestWindow t(*home_);
        t.platform.choices.push_back("");
        t.click(t.form().cmdOpen);
        test::Answers answers;
        answers.press(QStringLiteral("OK"));
        test::choose_menu(t.window, QStringLiteral("File"), QStringLiteral("Copia di sicurezza"));
        QVERIFY(answers.all_given());
        QVERIFY(answers.told().constLast().contains(QStringLiteral("perso il percorso")));
    }

    void the_status_line_counts_the_sectors() {
        test::TestWindow t(*home_);
        QCOMPARE(light(t).text(), QStringLiteral("Settori in ordine"));
        save_player(t);
        QVERIFY(light(t).text().endsWith(QStringLiteral("da riparare")));
        QTest::keyClick(&t.window, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(light(t).text(), QStringLiteral("Settori in ordine"));
    }

    void sectors_are_shown_and_repaired_as_one_save() {
        test::TestWindow t(*home_);
        save_player(t);
        const std::string saved = home_->image_bytes();
        QTest::mouseClick(&light(t), Qt::LeftButton);
        auto& dialog = sectors(t);
        auto& rows = *dialog.findChild<QTableView*>()->model();
        QCOMPARE(QString::number(rows.rowCount()), light(t).text().section(u' ', 0, 0));
        QVERIFY(rows.rowCount() > 0);
        QVERIFY(rows.index(0, 3).data().toString().contains(QStringLiteral("EDC")));
        QCOMPARE(rows.index(0, 2).data().toLongLong(), rows.index(0, 0).data().toLongLong() * sector_bytes + 1);
        QVERIFY(home_->image_bytes() == saved);
        QTest::mouseClick(button(dialog, "buttonRepair"), Qt::LeftButton);
        QCOMPARE(rows.rowCount(), 0);
        QVERIFY(!button(dialog, "buttonRepair")->isEnabled());
        QCOMPARE(light(t).text(), QStringLiteral("Settori in ordine"));
        QCOMPARE(check_image(t.form().image, {}, {}).bad, 0);
        QCOMPARE(t.form().history.texts().size(), 2U);
        QTest::keyClick(&dialog, Qt::Key_Escape);
        t.window.activateWindow();
        QApplication::processEvents();
        QTest::keyClick(&t.window, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(home_->image_bytes() == saved);
    }

    void the_whole_image_is_checked() {
        std::string bytes = home_->image_bytes();
        constexpr std::size_t sector = 1700;  // None of the tables' ones.
        QVERIFY(!std::ranges::binary_search(sheet_sectors(), static_cast<int>(sector)));
        bytes[sector * sector_bytes + 100] = static_cast<char>(bytes[sector * sector_bytes + 100] ^ 1);
        put(QString::fromStdString(home_->image()), bytes);
        test::TestWindow t(*home_);
        QCOMPARE(light(t).text(), QStringLiteral("Settori in ordine"));
        test::choose_menu(t.window, QStringLiteral("Strumenti"), QStringLiteral("Settori"));
        auto& dialog = sectors(t);
        QCOMPARE(dialog.findChild<QTableView*>()->model()->rowCount(), 0);
        QTest::mouseClick(button(dialog, "buttonAll"), Qt::LeftButton);
        QCOMPARE(dialog.findChild<QTableView*>()->model()->rowCount(), 1);
        QCOMPARE(dialog.findChild<QTableView*>()->model()->index(0, 0).data().toString(), QStringLiteral("1700"));
        QTest::mouseClick(button(dialog, "buttonRepair"), Qt::LeftButton);
        QCOMPARE(check_image(t.form().image, {}, {}).bad, 0);
    }

    /// The system fails at one call after the other while a tool saves.
    void a_repair_that_fails_changes_nothing() {
        constexpr int calls = 24;
        int refused = 0;
        for (int call = 1; call <= calls; call += 2) {
            home_ = std::make_unique<test::DemoHome>();
            test::FaultyFiles files;
            test::TestWindow t(home_->image(), home_->path(), [&files](const std::string& path) {
                return open_for_saves(files, path, Failures::Kind::run_time);
            });
            save_player(t);
            const std::string saved = home_->image_bytes();
            test::choose_menu(t.window, QStringLiteral("Strumenti"), QStringLiteral("Settori"));
            auto& dialog = sectors(t);
            test::Answers answers;
            answers.press(QStringLiteral("OK"));
            files.plan(call, {test::CallFault::Kind::fails, ENOSPC});
            QTest::mouseClick(button(dialog, "buttonRepair"), Qt::LeftButton);
            files.plan(0);
            if (t.failure || t.form().history.texts().size() == 2) continue;  // It was saved before the fault.
            QVERIFY2(answers.all_given(), qPrintable(QString::number(call)));
            QVERIFY(answers.told().value(0).startsWith(QStringLiteral("Nessun settore è stato riparato: ")));
            QVERIFY(home_->image_bytes() == saved);
            QVERIFY(dialog.isVisible());
            ++refused;
        }
        QVERIFY(refused >= 6);
    }

    void a_report_is_written_and_opened() {
        test::TestWindow t(*home_);
        const QString page = beside("pagina.html");
        test::Answers answers;
        answers.choose(beside("pagina"));
        test::choose_menu(t.window, QStringLiteral("Strumenti"), QStringLiteral("Relazione"));
        QVERIFY(answers.all_given());
        QVERIFY(bytes_of(page).starts_with("<!DOCTYPE html>"));
        QVERIFY(bytes_of(page).find("demo.bin") != std::string::npos);
        QCOMPARE(opened_, QList<QUrl>{QUrl::fromLocalFile(page)});
    }

    void a_report_that_cannot_be_written_is_told() {
        test::TestWindow t(*home_);
        test::Answers answers;
        answers.choose(QStringLiteral("/dev/null/pagina.html"));
        answers.press(QStringLiteral("OK"));
        test::choose_menu(t.window, QStringLiteral("Strumenti"), QStringLiteral("Relazione"));
        QVERIFY(answers.all_given());
        QVERIFY(answers.told().constLast().startsWith(QStringLiteral("La relazione non è stata scritta: ")));
        QVERIFY(opened_.isEmpty());
    }

    void without_an_image_the_tools_are_off() {
        test::TestWindow t(home_->path() + "/nothing.bin");
        for (QAction* const menu : t.window.menuBar()->actions()) {
            if (menu->text() != u"Strumenti") continue;
            for (const QAction* const tool : menu->menu()->actions()) {
                QVERIFY(tool->isSeparator() || !tool->isEnabled());
            }
        }
        QVERIFY(!light(t).isVisible());
    }

public:
    Q_INVOKABLE void note_url(const QUrl& url) { opened_ << url; }

private:
    static void save_player(test::TestWindow& t) {
        t.binder().act([&] {
            frmKalco& form = t.form();
            user::pick(form, form.cboSeqSQ, 10);
            user::pick(form, form.listDat, 9);
            user::pick(form, form.cboVel, form.cboVel.row() == 3 ? 4 : 3);
        });
        t.click(t.form().cmdSaveCar);
    }

    static app::SectorsDialog& sectors(const test::TestWindow& t) { return *t.window.findChild<app::SectorsDialog*>(); }
    static QPushButton* button(const QWidget& dialog, const char* name) {
        return dialog.findChild<QPushButton*>(QString::fromLatin1(name));
    }
    static QPushButton& light(const test::TestWindow& t) {
        return *t.window.findChild<QPushButton*>(QStringLiteral("viewSectors"));
    }
    static QString status(const test::TestWindow& t) {
        return t.window.findChild<QLabel*>(QStringLiteral("viewStatus"))->text();
    }

    QString beside(const char* name) const {
        return QString::fromStdString(home_->path()) + u'/' + QString::fromLatin1(name);
    }
    static std::string bytes_of(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }
    static void put(const QString& path, const std::string& bytes) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes.data(), static_cast<qint64>(bytes.size())), static_cast<qint64>(bytes.size()));
    }

    std::unique_ptr<test::DemoHome> home_;
    QList<QUrl> opened_;
};

KALCO_WINDOW_TEST(TestToolsFiles)
#include "test_tools_files.moc"
