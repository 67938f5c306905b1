#include "app/help/manual.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

namespace kalco::app {

Manual::Manual(QWidget* parent) : QDialog(parent), pages_(new QTextBrowser) {
    setWindowTitle(QStringLiteral("Manuale di Kalco"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(pages_);
    pages_->setFrameShape(QFrame::NoFrame);
    pages_->setOpenExternalLinks(true);
    pages_->setSearchPaths({QStringLiteral(":/manual")});
    QFile text(QStringLiteral(":/manual/manuale.md"));
    if (text.open(QIODevice::ReadOnly)) pages_->setMarkdown(QString::fromUtf8(text.readAll()));
    pages_->document()->setDocumentMargin(18);
    give_headings_anchors();
    fit_pictures();
    resize(780, 640);
}

void Manual::give_headings_anchors() {
    for (QTextBlock block = pages_->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0) continue;
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        QTextCharFormat named;
        named.setAnchor(true);
        named.setAnchorNames({heading_anchor(block.text())});
        cursor.mergeCharFormat(named);
    }
}

void Manual::fit_pictures() {
    constexpr double picture_width = 680;
    std::vector<QTextFragment> pictures;
    for (QTextBlock block = pages_->document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (part.fragment().charFormat().isImageFormat()) pictures.push_back(part.fragment());
        }
    }
    for (const QTextFragment& fragment : pictures) {
        QTextImageFormat picture = fragment.charFormat().toImageFormat();
        picture.setWidth(take_smooth_picture(picture.name(), picture_width));
        QTextCursor cursor(pages_->document());
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(picture);
    }
}

double Manual::take_smooth_picture(const QString& name, double most) {
    const QImage whole(QStringLiteral(":/manual/") + name);
    const double width = std::min<double>(most, whole.width());
    const int pixels = qRound(width * devicePixelRatioF());
    // The browser would leave out pixels, and with them half the letters.
    if (pixels < whole.width()) {
        pages_->document()->addResource(QTextDocument::ImageResource, QUrl(name),
                                        whole.scaledToWidth(pixels, Qt::SmoothTransformation));
    }
    return width;
}

QString heading_anchor(const QString& heading) {
    QString anchor;
    for (const QChar character : heading.toLower()) {
        if (character.isLetterOrNumber() || character == u'-' || character == u'_') {
            anchor += character;
        } else if (character == u' ') {
            anchor += u'-';
        }
    }
    return anchor;
}

void show_about(QWidget* parent) {
    QMessageBox box(parent);
    box.setWindowTitle(QStringLiteral("Informazioni su Kalco"));
    box.setIconPixmap(QApplication::windowIcon().pixmap(64, 64));
    box.setTextFormat(Qt::PlainText);
    box.setText(QStringLiteral("Kalco %1").arg(QApplication::applicationVersion()));
    box.setInformativeText(
        QStringLiteral("Modifica squadre e giocatori di un gioco di calcio nell'immagine del suo CD.\n\n"
                       "Licenza MIT. Qt %1.")
            .arg(QString::fromLatin1(qVersion())));
    box.addButton(QStringLiteral("Chiudi"), QMessageBox::AcceptRole);
    box.exec();
}

}  // namespace kalco::app
