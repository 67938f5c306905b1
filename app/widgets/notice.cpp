#include "app/widgets/notice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "app/readable.h"

namespace kalco::app {

Notice::Notice(QWidget* parent) : QFrame(parent), text_(new QLabel), remedy_(new QPushButton) {
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    remedy_->setObjectName(QStringLiteral("viewRemedy"));
    remedy_->setFocusPolicy(Qt::TabFocus);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(12, 4, 6, 4);
    row->addWidget(text_, 1);
    row->addWidget(remedy_);
    connect(remedy_, &QPushButton::clicked, this, &Notice::remedy_pressed);
    hide();
}

void Notice::show_notice(const QString& text, const QString& remedy) {
    text_->setText(text);
    remedy_->setText(remedy);
    remedy_->setVisible(!remedy.isEmpty());
    setVisible(!text.isEmpty());
}

QString Notice::text() const {
    return text_->text();
}

void Notice::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor ground = warning_ink(palette().color(QPalette::Window));
    const QColor edge = ground;
    ground.setAlphaF(0.14F);
    painter.setBrush(ground);
    painter.drawRoundedRect(rect(), 4, 4);
    painter.setBrush(edge);
    painter.drawRoundedRect(QRect(0, 0, 5, height()), 2, 2);
}

}  // namespace kalco::app
