#include "app/status_line.h"

#include <QPushButton>
#include <utility>

#include "app/widgets/elided_label.h"

namespace kalco::app {
namespace {

constexpr int side_margin = 7;  ///< As of the page above.

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent),
      text_(new ElidedLabel),
      resume_button_(new QPushButton(QStringLiteral("Riprendi"))) {
    text_->setObjectName(QStringLiteral("viewStatus"));
    resume_button_->setObjectName(QStringLiteral("viewResume"));
    resume_button_->setFocusPolicy(Qt::TabFocus);
    resume_button_->setShortcut(QKeySequence(QStringLiteral("Ctrl+R")));
    resume_button_->setToolTip(QStringLiteral("Torna dov'erano e le riscrive nei campi (Ctrl+R)"));
    resume_button_->hide();
    addWidget(text_, 1);
    addPermanentWidget(resume_button_);
    setSizeGripEnabled(false);
    setContentsMargins(side_margin, 0, side_margin, 0);
    connect(resume_button_, &QPushButton::clicked, this, &StatusLine::press);
}

void StatusLine::tell(const QString& text) {
    tell(text, nullptr);
}

void StatusLine::tell(const QString& text, std::function<void()> resume) {
    text_->show_text(text);
    resume_ = std::move(resume);
    resume_button_->setVisible(resume_ != nullptr);
}

QString StatusLine::text() const {
    return text_->text();
}

void StatusLine::press() {
    const std::function<void()> step = std::exchange(resume_, nullptr);
    tell({});
    if (step) step();
}

}  // namespace kalco::app
