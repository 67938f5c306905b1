#include "app/file_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHeaderView>
#include <QRegularExpression>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>
#include <QUrl>

#include "app/tools/message.h"

namespace kalco::app {
namespace {

void prepare(QFileDialog& dialog, const QString& title, const QStringList& filters, const QString& start) {
    prepare_file_dialog(dialog, title);
    dialog.setNameFilters(filters);
    const QFileInfo file(start);
    dialog.setDirectory(file.isDir() ? start : file.path());
}

QString chosen(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().constFirst();
}

/// The first ending of a filter: "csv" of "CSV (*.csv *.txt)".
QString ending_of(const QString& filter) {
    static const QRegularExpression ending(QStringLiteral("\\*\\.(\\w+)"));
    return ending.match(filter).captured(1);
}

/// Qt's own words know no name for a directory and call most files unknown.
class FileKinds : public QObject, public QFileIconProvider {
public:
    using QObject::QObject;

    QString type(const QFileInfo& file) const override {
        if (file.isDir()) return QStringLiteral("Cartella");
        return file.suffix().isEmpty() ? QStringLiteral("File") : QStringLiteral("File ") + file.suffix().toUpper();
    }
};

/// Room for the names, and for the heads of the other columns.
void lay_out(QFileDialog& dialog) {
    constexpr QSize wished(760, 480);
    dialog.resize(wished.boundedTo(dialog.screen()->availableSize()));
    if (auto* const halves = dialog.findChild<QSplitter*>(QStringLiteral("splitter"))) {
        constexpr int places = 170;
        halves->setSizes({places, dialog.width() - places});
    }
    auto* const files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (files == nullptr) return;
    for (int column = 0; column < files->header()->count(); ++column) {
        files->header()->setSectionResizeMode(column,
                                              column == 0 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    }
}

/// A file that has an ending gets the one of the filter that is chosen.
void follow_filter(QFileDialog& dialog) {
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        const QFileInfo file(dialog.selectedFiles().value(0));
        const QString ending = ending_of(filter);
        if (ending.isEmpty() || file.suffix().isEmpty() || file.isDir()) return;
        dialog.selectFile(file.completeBaseName() + u'.' + ending);
    });
}

}  // namespace

void prepare_file_dialog(QFileDialog& dialog, const QString& title) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::ReadOnly);
    dialog.setWindowTitle(title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setIconProvider(new FileKinds(&dialog));
    // Qt remembers the places of all dialogs that there ever were.
    dialog.setSidebarUrls({QUrl(QStringLiteral("file:")), QUrl::fromLocalFile(QDir::homePath())});
    lay_out(dialog);
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Cerca in:"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("&Nome file:"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Tipo di file:"));
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("&Apri"));
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Annulla"));
}

QString choose_existing_file(QWidget* parent, const QString& title, const QStringList& filters, const QString& start) {
    QFileDialog dialog(parent);
    prepare(dialog, title, filters, start);
    return chosen(dialog);
}

QString choose_new_file(QWidget* parent, const QString& title, const QStringList& filters, const QString& start) {
    QFileDialog dialog(parent);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    prepare(dialog, title, filters, start);
    dialog.setOption(QFileDialog::ReadOnly, false);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setLabelText(QFileDialog::Accept, QStringLiteral("&Salva"));
    if (!QFileInfo(start).isDir()) dialog.selectFile(QFileInfo(start).fileName());
    follow_filter(dialog);
    for (;;) {
        QString path = chosen(dialog);
        if (path.isEmpty()) return {};
        const QString ending = ending_of(dialog.selectedNameFilter());
        if (QFileInfo(path).suffix().isEmpty() && !ending.isEmpty()) path += u'.' + ending;
        if (!QFileInfo::exists(path)) return path;
        if (ask(parent, QStringLiteral("Il file «%1» c'è già.").arg(QFileInfo(path).fileName()),
                QStringLiteral("Sostituisci"))) {
            return path;
        }
    }
}

}  // namespace kalco::app
