#include "app/widgets/length_counter.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>

#include "app/readable.h"

namespace kalco::app {
namespace {

constexpr int gap = 6;

}  // namespace

LengthCounter::LengthCounter(QLineEdit& field) : field_(field), text_(new QLabel(&field)) {
    text_->setObjectName(QStringLiteral("viewLength_") + field.objectName());
    text_->setAttribute(Qt::WA_TransparentForMouseEvents);
    text_->hide();
    field.installEventFilter(this);
    connect(&field, &QLineEdit::textChanged, this, &LengthCounter::count);
}

void LengthCounter::show_limit(int limit) {
    if (limit == limit_) return;
    limit_ = limit;
    count();
}

void LengthCounter::count() {
    text_->setVisible(limit_ > 0);
    if (limit_ <= 0) {
        field_.setTextMargins(0, 0, 0, 0);
        return;
    }
    const auto length = field_.text().size();
    const QColor base = field_.palette().color(QPalette::Base);
    const QColor text = field_.palette().color(QPalette::Text);
    set_ink(*text_, length > limit_ ? warning_ink(base) : faint(text, base));
    text_->setText(QStringLiteral("%1/%2").arg(length).arg(limit_));
    text_->adjustSize();
    field_.setTextMargins(0, 0, text_->width() + gap, 0);
    place();
}

void LengthCounter::place() {
    text_->move(field_.width() - text_->width() - gap, (field_.height() - text_->height()) / 2);
}

bool LengthCounter::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize) place();
    if (event->type() == QEvent::PaletteChange) count();
    return false;
}

}  // namespace kalco::app
