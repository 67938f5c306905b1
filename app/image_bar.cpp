#include "app/image_bar.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/widgets/elided_label.h"
#include "app/widgets/notice.h"

namespace kalco::app {
namespace {

QString file_name(const QString& path) {
    return QFileInfo(path).fileName();
}

/// In a button's caption a single "&" would be an access key.
QString as_caption(QString text) {
    return text.replace(u'&', QStringLiteral("&&"));
}

}  // namespace

ImageBar::ImageBar(QWidget* parent) : QWidget(parent), path_(new ElidedLabel), notice_(new Notice) {
    auto* const open = new QPushButton;
    open->setObjectName(QStringLiteral("cmdOpen"));
    open->setToolTip(QStringLiteral("Passa a un'altra immagine (Ctrl+O); si può anche trascinarla sulla finestra"));
    path_->setObjectName(QStringLiteral("viewPath"));
    path_->setForegroundRole(QPalette::PlaceholderText);
    path_->set_elide_mode(Qt::ElideMiddle);
    notice_->setObjectName(QStringLiteral("viewImageNotice"));
    notice_->remedy().setObjectName(QStringLiteral("viewReopen"));

    auto* const row = new QHBoxLayout;
    row->addWidget(open);
    row->addWidget(path_, 1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(notice_);
    connect(notice_, &Notice::remedy_pressed, this, [this] { Q_EMIT reopen_wanted(open_path_); });
}

void ImageBar::show_image(const frmKalco& form) {
    const QString path = QString::fromStdString(form.ImagePath);
    if (!form.image.is_open()) {
        show_closed(path);
    } else if (path.isEmpty()) {
        show_lost();
    } else {
        show_open(path);
    }
}

void ImageBar::show_open(const QString& path) {
    open_path_ = path;
    title_ = file_name(path);
    path_->show_text(path);
    notice_->show_notice({});
}

void ImageBar::show_closed(const QString& path) {
    path_->show_text(path);
    if (path.isEmpty()) {
        title_.clear();
        notice_->show_notice(QStringLiteral("Nessuna immagine aperta: scegliere una squadra chiude Kalco."));
        return;
    }
    title_ = file_name(path) + QStringLiteral(" (non aperta)");
    notice_->show_notice(QStringLiteral("Immagine non aperta: %1. Scegliere una squadra chiude Kalco: prima apri "
                                        "un'immagine.")
                             .arg(why_closed(path)));
}

void ImageBar::show_lost() {
    title_ = file_name(open_path_) + QStringLiteral(" (percorso perso)");
    path_->show_text({});
    notice_->show_notice(QStringLiteral("Apertura annullata: di %1 si è perso il percorso, e il prossimo salvataggio "
                                        "chiuderebbe Kalco.")
                             .arg(file_name(open_path_)),
                         QStringLiteral("Riapri %1").arg(as_caption(file_name(open_path_))));
}

QString why_closed(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) return QStringLiteral("il file non c'è");
    if (file.isDir()) return QStringLiteral("è una cartella");
    if (!file.isReadable()) return QStringLiteral("il file non si può leggere");
    if (!file.isWritable()) return QStringLiteral("il file è protetto da scrittura");
    return QStringLiteral("il file non si può aprire");
}

}  // namespace kalco::app
