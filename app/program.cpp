#include "app/program.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>
#include <utility>

#include "app/doing.h"
#include "app/style.h"
#include "disc/runtime_error.h"
#include "editor/window/user.h"

namespace kalco::app {
namespace {

/// The words of Qt's own menus and dialogs: those that came with the program, or else the system's.
void install_translation() {
    const QString own = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/kalco/translations");
    auto* const words = new QTranslator(qApp);
    for (const QString& directory : {own, QLibraryInfo::path(QLibraryInfo::TranslationsPath)}) {
        if (!words->load(QStringLiteral("qtbase_it"), directory)) continue;
        QCoreApplication::installTranslator(words);
        return;
    }
}

}  // namespace

void prepare_application() {
    QApplication::setApplicationName(QStringLiteral("kalco"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kalco"));
    QApplication::setDesktopFileName(QStringLiteral("org.kalco.Kalco"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icon/kalco.svg")));
    QApplication::setStyle(new Style);
    install_translation();
    // Closing the first dialog must not end the program; the window's end does.
    QApplication::setQuitOnLastWindowClosed(false);
}

Program::Program(StorageOpener opener) : editor_(platform_, std::move(opener)), window_(editor_.form) {
    Binder& binder = window_.binder();
    platform_.set_window(&window_);
    platform_.before_box = [&binder] { binder.sync(); };
    platform_.before_dialog = [this] { window_.hide_pending(); };
    QObject::connect(&window_, &KalcoWindow::image_wanted, &window_, [this](const QString& path) { open_image(path); });
    binder.on_failure = [this](const std::exception_ptr& failure) { fail(failure); };
    binder.on_ended = [this] { end(editor_.form.ended == Ending::denied ? exit_failed : exit_done); };
}

void Program::open_image(const QString& path) {
    platform_.choose_next(path);
    window_.binder().act([this] { user::click(editor_.form, editor_.form.cmdOpen); });
}

int Program::run() {
    window_.start();
    if (status_) return *status_;
    waiting_ = true;
    return QApplication::exec();
}

void Program::end(int status) {
    status_ = status;
    window_.hide();
    if (waiting_) QCoreApplication::exit(status);
}

void Program::fail(const std::exception_ptr& failure) {
    if (status_) return;
    status_ = exit_failed;
    int number = error::invalid_call;
    try {
        std::rethrow_exception(failure);
    } catch (const std::exception& error) {
        number = error_number(error);
    } catch (...) {
        // Nothing throws what is no std::exception; it would end the run all the same.
    }
    try {
        const std::string title = "Errore di run-time '" + std::to_string(number) + "':\n";
        platform_.tell_end(title + std::string(run_time_error_text(number)), last_doing(window_.binder()));
    } catch (const std::exception&) {
        // There is no memory for a box either.
    }
    try {
        editor_.form.image.close();
    } catch (const std::exception&) {
        // The first error has been told, and what was written stays.
    }
    end(exit_failed);
}

}  // namespace kalco::app
