#include "app/widgets/pitch_names.h"

#include <QPainter>
#include <algorithm>

#include "app/quick_text.h"
#include "app/text.h"

namespace kalco::app {
namespace {

/// Below this side of a shirt its name could not be read.
constexpr int least_shirt = 40;
constexpr int padding = 4;

}  // namespace

PitchNames::PitchNames(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

QFont PitchNames::name_font(int shirt_height) const {
    QFont result = font();
    result.setPixelSize(std::clamp(shirt_height / 5, 9, 14));
    return result;
}

void PitchNames::place(const std::vector<QRect>& shirts, const QRect& grass) {
    placed_.clear();
    update();
    const auto names = std::min(shirts.size(), static_cast<std::size_t>(names_.size()));
    if (names == 0 || shirts.back().height() < least_shirt) return;
    font_ = name_font(shirts.back().height());
    const QFontMetrics metrics(font_);
    for (std::size_t i = 0; i < names; ++i) {
        const QString name = visible_text(names_[static_cast<qsizetype>(i)].trimmed());
        if (name.isEmpty()) continue;
        QRect area(0, 0, metrics.horizontalAdvance(name) + 2 * padding, metrics.height());
        area.moveCenter(QPoint(shirts[i].center().x(), shirts[i].bottom() + area.height() / 2));
        // At the pitch's edge it moves inward.
        area.moveLeft(std::clamp(area.left(), grass.left(), std::max(grass.left(), grass.right() - area.width())));
        const bool on_shirt = std::any_of(shirts.begin(), shirts.end(), [&](const QRect& shirt) {
            return shirt != shirts[i] && area.intersects(shirt.adjusted(6, 4, -6, -2));
        });
        const bool on_name = std::any_of(placed_.begin(), placed_.end(),
                                         [&](const Placed& other) { return area.intersects(other.area); });
        if (!on_shirt && !on_name && grass.contains(area)) placed_.push_back({name, area});
    }
}

void PitchNames::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font_);
    for (const Placed& name : placed_) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x14, 0x3a, 0x1b, 170));
        painter.drawRoundedRect(name.area, 4, 4);
        painter.setPen(Qt::white);
        draw_text(painter, name.area, Qt::AlignCenter, name.name);
    }
}

}  // namespace kalco::app
