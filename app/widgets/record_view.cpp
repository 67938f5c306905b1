#include "app/widgets/record_view.h"

#include <QPainter>

#include "app/quick_text.h"
#include "app/readable.h"
#include "app/text.h"
#include "app/widgets/pick_combo.h"
#include "disc/player_facts.h"

namespace kalco::app {
namespace {

constexpr int skill_steps = bits_of(Skill::attack).count();
/// The lines of text above the skills, apart from the name.
constexpr int fact_rows = 5;

}  // namespace

RecordView::RecordView(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void RecordView::show_player(const PlayerSummary& player) {
    player_ = player;
    QStringList spoken = player.facts;
    for (const auto& skill : player.skills) spoken << skill.name + u' ' + QString::number(skill.value);
    setAccessibleDescription(spoken.join(QStringLiteral(", ")));
    update();
}

int RecordView::skill_name_width() const {
    int widest = 0;
    for (const BitField& skill : skill_bits) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(qt_text(skill.caption)));
    }
    return widest + 12;
}

int RecordView::number_width() const {
    return fontMetrics().horizontalAdvance(QStringLiteral("00")) + 8;
}

int RecordView::bar_width() const {
    return fontMetrics().averageCharWidth() * 9;
}

QSize RecordView::sizeHint() const {
    const int line = fontMetrics().height() + 2;
    return {skill_name_width() + number_width() + bar_width() + 24,
            line * (1 + fact_rows + static_cast<int>(skill_count)) + 20};
}

void RecordView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    const QColor faint = app::faint(ink, palette().color(QPalette::Window), 0.6);
    QRect area = rect().adjusted(8, 4, -4, -4);
    if (player_.empty()) {
        painter.setPen(faint);
        painter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, tr("Scegli un giocatore per vederne i dati"));
        return;
    }
    const int line = fontMetrics().height() + 2;
    const auto next_line = [&area, line] {
        const QRect row(area.left(), area.top(), area.width(), line);
        area.setTop(area.top() + line);
        return row;
    };
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(ink);
    draw_text(painter, next_line(), Qt::AlignLeft | Qt::AlignVCenter, visible_text(player_.name));
    painter.setFont(font());
    for (const QString& fact : player_.facts) {
        painter.setPen(faint);
        const QRect row = next_line();
        draw_elided(painter, row, Qt::AlignLeft | Qt::AlignVCenter, fact);
    }
    area.setTop(area.top() + 6);
    for (const auto& skill : player_.skills) {
        const QRect row = next_line();
        painter.setPen(ink);
        draw_text(painter, row, Qt::AlignLeft | Qt::AlignVCenter, skill.name);
        const QRect number(row.left() + skill_name_width(), row.top(), number_width() - 8, row.height());
        draw_text(painter, number, Qt::AlignRight | Qt::AlignVCenter, QString::number(skill.value));
        const int reached = std::clamp(skill.value - lowest_skill + 1, 0, skill_steps);
        const double full = bar_width() * reached / static_cast<double>(skill_steps);
        painter.setPen(Qt::NoPen);
        painter.setBrush(skill_colour((std::max(reached, 1) - 1.0) / (skill_steps - 1)));
        painter.drawRoundedRect(QRectF(number.right() + 8, row.center().y() - 3, full, 7), 3, 3);
    }
}

}  // namespace kalco::app
