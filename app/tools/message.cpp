#include "app/tools/message.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

namespace kalco::app {
namespace {

void prepare(QMessageBox& box, QMessageBox::Icon icon, const QString& text) {
    box.setIcon(icon);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
}

}  // namespace

void tell_failure(QWidget* parent, const QString& text, QStringView more) {
    QMessageBox box(parent);
    prepare(box, QMessageBox::Warning, text);
    box.setInformativeText(more.toString());
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.exec();
}

bool ask(QWidget* parent, const QString& question, QStringView doing) {
    QMessageBox box(parent);
    prepare(box, QMessageBox::Question, question);
    const auto* const yes = box.addButton(doing.toString(), QMessageBox::AcceptRole);
    QPushButton* const no = box.addButton(QStringLiteral("Annulla"), QMessageBox::RejectRole);
    box.setDefaultButton(no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

}  // namespace kalco::app
