#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QProcess>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QtTest>

#include "app/arguments.h"
#include "app/help/manual.h"
#include "app/support/test_list.h"
#include "app/support/test_window.h"

using namespace kalco;

/// The manual and the about box in the window, the help and the version on the command line.
class TestHelp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { test::prepare_application(); }

    void the_key_opens_the_manual_once() {
        test::TestWindow t(home_);
        for (int i = 0; i < 2; ++i) {
            QTest::keyClick(&t.window, Qt::Key_F1);
            QApplication::processEvents();
            QCOMPARE(t.window.findChildren<app::Manual*>().size(), 1);
        }
        auto* const manual = t.window.findChild<app::Manual*>();
        QVERIFY(manual->isVisible() && !manual->isModal());
        QTest::keyClick(manual, Qt::Key_Escape);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(t.window.findChildren<app::Manual*>().size(), 0);
    }

    void the_manual_is_the_projects_own() {
        const app::Manual manual;
        QFile text(QStringLiteral(KALCO_SOURCE "/docs/manuale.md"));
        QVERIFY(text.open(QIODevice::ReadOnly));
        QStringList headings;
        for (const QString& line : QString::fromUtf8(text.readAll()).split(u'\n')) {
            if (line.startsWith(u'#')) headings << line.section(u' ', 1);
        }
        QVERIFY(headings.size() > 10);
        const QString shown = manual.pages().toPlainText();
        for (const QString& heading : headings) QVERIFY2(shown.contains(heading), qPrintable(heading));
    }

    void every_link_inside_it_leads_somewhere() {
        const app::Manual manual;
        QSet<QString> anchors;
        QSet<QString> links;
        const QTextDocument& document = *manual.pages().document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                for (const QString& name : format.anchorNames()) anchors << name;
                if (format.anchorHref().startsWith(u'#')) links << format.anchorHref().mid(1);
            }
        }
        QVERIFY(links.size() >= 10);
        for (const QString& link : links) QVERIFY2(anchors.contains(link), qPrintable(link));
    }

    void its_pictures_are_there() {
        const app::Manual manual;
        const QTextDocument& document = *manual.pages().document();
        int pictures = 0;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (!part.fragment().charFormat().isImageFormat()) continue;
                const QString name = part.fragment().charFormat().toImageFormat().name();
                QVERIFY2(QFile::exists(QStringLiteral(":/manual/") + name), qPrintable(name));
                ++pictures;
            }
        }
        QVERIFY(pictures >= 6);
    }

    void its_pictures_are_made_smaller_smoothly() {
        const app::Manual manual;
        const QTextDocument& document = *manual.pages().document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                if (!part.fragment().charFormat().isImageFormat()) continue;
                const QTextImageFormat format = part.fragment().charFormat().toImageFormat();
                const auto shown = document.resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
                const int whole = QImage(QStringLiteral(":/manual/") + format.name()).width();
                QVERIFY(whole > 0 && format.width() <= whole);
                QCOMPARE(shown.width(), std::min(whole, qRound(format.width() * manual.devicePixelRatioF())));
            }
        }
    }

    void anchors_are_named_as_links_name_them() {
        QCOMPARE(app::heading_anchor(QStringLiteral("Aprire un'immagine")), QStringLiteral("aprire-unimmagine"));
        QCOMPARE(app::heading_anchor(QStringLiteral("Prima: tenere le copie")),
                 QStringLiteral("prima-tenere-le-copie"));
    }

    void the_menu_has_an_about_box() {
        test::TestWindow t(home_);
        QApplication::setApplicationVersion(QStringLiteral("1.2.3"));
        QAction* about = nullptr;
        for (QAction* action : t.window.menuBar()->actions().constLast()->menu()->actions()) {
            if (action->text().contains(QStringLiteral("nformazioni"))) about = action;
        }
        QVERIFY(about != nullptr);
        QString text;
        QTimer::singleShot(0, [&text] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            text = box->text();
            QTest::keyClick(box, Qt::Key_Escape);
        });
        about->trigger();
        QCOMPARE(text, QStringLiteral("Kalco 1.2.3"));
    }

    void the_command_line_names_an_image() {
        using Wish = app::Arguments::Wish;
        QVERIFY(app::read_arguments({}).image.isEmpty());
        QCOMPARE(app::read_arguments({QStringLiteral("/a/b.bin")}).image, QStringLiteral("/a/b.bin"));
        QVERIFY(app::read_arguments({QStringLiteral("b.bin")}).image.endsWith(QStringLiteral("/b.bin")));
        QCOMPARE(app::read_arguments({QStringLiteral("--"), QStringLiteral("/-x")}).image, QStringLiteral("/-x"));
        QVERIFY(app::read_arguments({QStringLiteral("--help")}).wish == Wish::help);
        QVERIFY(app::read_arguments({QStringLiteral("-v")}).wish == Wish::version);
        for (const QStringList& refused :
             {QStringList{QStringLiteral("--what")}, {QStringLiteral("a"), QStringLiteral("b")}, {QString()}}) {
            QVERIFY(app::read_arguments(refused).wish == Wish::refused);
        }
    }

    void help_and_version_need_no_display() {
        QVERIFY(run({QStringLiteral("--help")}).startsWith("Uso: kalco [IMMAGINE]"));
        QVERIFY(run({QStringLiteral("--version")}).startsWith("kalco "));
    }

    void closed_descriptors_never_become_the_image() {
        const QString program = QString::fromStdString(home_.path()) + QStringLiteral("/kalco");
        const QString image = QString::fromStdString(home_.image());
        QVERIFY(QFile::copy(QStringLiteral(KALCO_PROGRAM), program));
        const QByteArray before = QByteArray::fromStdString(home_.image_bytes());
        QProcess process;
        process.start(QStringLiteral("/bin/sh"),
                      {QStringLiteral("-c"), QStringLiteral("exec \"$0\" \"$1\" <&- >&- 2>&-"), program, image});
        QVERIFY(process.waitForStarted());
        const QDir opened(QStringLiteral("/proc/%1/fd").arg(process.processId()));
        const auto target_of = [&opened](int fd) { return QFile::symLinkTarget(opened.filePath(QString::number(fd))); };
        const auto holds_image = [&] {
            for (const QString& fd : opened.entryList(QDir::System | QDir::Files)) {
                if (target_of(fd.toInt()) == QFileInfo(image).canonicalFilePath()) return true;
            }
            return false;
        };
        QTRY_VERIFY_WITH_TIMEOUT(holds_image(), 60000);
        for (int fd = 0; fd <= 2; ++fd) QCOMPARE(target_of(fd), QStringLiteral("/dev/null"));
        process.kill();
        QVERIFY(process.waitForFinished());
        QCOMPARE(QByteArray::fromStdString(home_.image_bytes()), before);
    }

private:
    static QByteArray run(const QStringList& arguments) {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("no-such-platform"));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(KALCO_PROGRAM), arguments);
        if (!program.waitForFinished(60000) || program.exitCode() != 0) return {};
        return program.readAllStandardOutput();
    }

    test::DemoHome home_;
};

KALCO_WINDOW_TEST(TestHelp)
#include "test_help.moc"
