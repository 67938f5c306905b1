#include "app/tools/patch/patch_dialog.h"

#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "app/tools/patch/patch_make_page.h"
#include "app/tools/patch/patch_use_page.h"

namespace kalco::app {

PatchDialog::PatchDialog(Desk& desk, QWidget* parent) : QDialog(parent) {
    constexpr QSize first_size(820, 560);
    setObjectName(QStringLiteral("PatchDialog"));
    setWindowTitle(QStringLiteral("Patch"));
    resize(first_size);
    auto* const pages = new QTabWidget;
    pages->setObjectName(QStringLiteral("pages"));
    pages->setAccessibleName(QStringLiteral("Usare o creare una patch"));
    pages->addTab(new PatchUsePage(desk), QStringLiteral("&Usa una patch"));
    pages->addTab(new PatchMakePage(desk), QStringLiteral("&Crea una patch"));
    auto* const close = new QPushButton(QStringLiteral("C&hiudi"));
    close->setObjectName(QStringLiteral("buttonClose"));
    close->setDefault(true);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(pages, 1);
    column->addWidget(close, 0, Qt::AlignRight);
    connect(close, &QPushButton::clicked, this, &PatchDialog::reject);
    connect(&desk, &Desk::image_changed, this, [this, &desk] {
        if (desk.image() == nullptr) reject();
    });
}

}  // namespace kalco::app
