#include "app/qt_platform.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <utility>

#include "app/file_dialogs.h"
#include "app/text.h"
#include "editor/window/side_file.h"
#include "editor/window/system_directories.h"

namespace kalco::app {
namespace {

QMessageBox::Icon box_icon(Icon icon) {
    switch (icon) {
        case Icon::information: return QMessageBox::Information;
        case Icon::warning: return QMessageBox::Warning;
        case Icon::stop: break;
    }
    return QMessageBox::Critical;
}

/// The line breaks of the texts are CR LF, and in a few LF CR.
QString with_line_feeds(QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QStringLiteral("\n\r"), QStringLiteral("\n"));
    return text;
}

}  // namespace

QWidget* QtPlatform::parent() const {
    return window_ != nullptr && window_->isVisible() ? window_.data() : nullptr;
}

Answer QtPlatform::message(const std::string& text, Icon icon, Buttons buttons) {
    if (before_box) before_box();
    QMessageBox box(parent());
    box.setIcon(box_icon(icon));
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(with_line_feeds(qt_text(text)));
    if (buttons == Buttons::ok) {
        box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        box.exec();
        return Answer::ok;
    }
    const auto* const yes = box.addButton(QStringLiteral("&S\u00EC"), QMessageBox::YesRole);
    const auto* const no = box.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
    QPushButton* const cancel = box.addButton(QStringLiteral("Annulla"), QMessageBox::RejectRole);
    box.setEscapeButton(cancel);
    box.exec();
    if (box.clickedButton() == yes) return Answer::yes;
    return box.clickedButton() == no ? Answer::no : Answer::cancel;
}

void QtPlatform::tell_end(const std::string& error, const QString& doing) {
    if (before_box) before_box();
    QMessageBox box(parent());
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(with_line_feeds(qt_text(error)));
    box.setInformativeText(QStringLiteral("Durante: %1.\n\nKalco si chiude. Quello che era già scritto "
                                          "nell'immagine resta.")
                               .arg(doing));
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.exec();
}

QList<QUrl> QtPlatform::side_bar(const QList<QUrl>& usual) const {
    QList<QUrl> places = usual;
    for (const std::string_view name : {directory::export_teams, directory::transfer, directory::formations,
                                        directory::numbers, directory::kickers}) {
        const QString path = QString::fromStdString(side_directory(*this, name));
        if (QFileInfo(path).isDir()) places << QUrl::fromLocalFile(path);
    }
    return places;
}

std::string QtPlatform::open_dialog(const std::string& filter, const std::string& initial_directory) {
    if (before_box) before_box();
    if (const auto choice = std::exchange(next_choice_, std::nullopt)) return choice->toStdString();
    if (before_dialog) before_dialog();
    QFileDialog dialog(parent());
    prepare_file_dialog(dialog, QStringLiteral("Apri"));
    dialog.setDirectory(QString::fromStdString(initial_directory));
    dialog.setNameFilters(name_filters(qt_text(filter)));
    dialog.setSidebarUrls(side_bar(dialog.sidebarUrls()));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst().toStdString();
}

std::string QtPlatform::program_directory() const {
    const QString beside = QCoreApplication::applicationDirPath();
    if (!is_system_program_directory(beside.toStdString()) && QFileInfo(beside).isWritable()) {
        return beside.toStdString();
    }
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(own);
    return own.toStdString();
}

void QtPlatform::miss_directory(const std::string& path) {
    if (before_box) before_box();
    QMessageBox box(parent());
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(QStringLiteral("Impossibile creare la cartella\n%1").arg(QString::fromStdString(path)));
    box.setInformativeText(QStringLiteral(
        "L'immagine è aperta, ma la preparazione della finestra si è fermata qui: le squadre non si possono esportare, "
        "gli elenchi dei nomi restano vuoti e il nome di un giocatore non è limitato a 10 caratteri. Un nome più lungo "
        "finisce sopra i dati vicini.\n\n"
        "È meglio chiudere, rendere scrivibile la cartella e aprire di nuovo l'immagine."));
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.exec();
}

QStringList name_filters(const QString& filter) {
    QStringList result;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // "*.*" leaves out files without an extension here.
        const QString pattern = parts[i + 1] == u"*.*" ? QStringLiteral("*") : parts[i + 1];
        const QString label = parts[i].section(u'(', 0, 0).trimmed();
        result << QStringLiteral("%1 (%2)").arg(label == pattern ? QStringLiteral("File") : label, pattern);
    }
    return result;
}

}  // namespace kalco::app
