#include "app/tools/search/wish_bar.h"

#include <QKeyEvent>
#include <algorithm>

#include "app/text.h"
#include "app/tools/search/players_model.h"
#include "ui_wish_bar.h"

namespace kalco::app {
namespace {

/// What a skill that is looked for begins with: better than most.
constexpr int first_least = 16;

/// A pick list that no control of the editor fills.
void fill(PickCombo& combo, const QStringList& rows, int row) {
    combo.set_rows(rows);
    combo.show_text(rows[row], row);
}

QString every_team() {
    return QStringLiteral("tutte le squadre");
}

QStringList roles() {
    QStringList rows{QStringLiteral("tutti i ruoli")};
    for (const std::string_view role : role_rows) rows << qt_text(role);
    return rows;
}

QStringList skills() {
    QStringList rows{QStringLiteral("–")};
    for (const BitField& skill : skill_bits) rows << qt_text(skill.caption);
    return rows;
}

QStringList values() {
    QStringList rows;
    for (int value = lowest_skill; value <= highest_skill; ++value) rows << QString::number(value);
    return rows;
}

/// There is a least value where there is a skill.
void show_least(const PickCombo& skill, PickCombo& least) {
    const bool wished = skill.currentIndex() > 0;
    least.setEnabled(wished);
    least.show_text(wished ? least.currentText() : QString(), least.currentIndex());
}

bool moves_in_rows(const QKeyEvent& key) {
    constexpr std::array keys{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    return std::ranges::find(keys, key.key()) != keys.end() && !(key.modifiers() & ~Qt::KeypadModifier);
}

}  // namespace

WishBar::WishBar(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::WishBar>()) {
    ui_->setupUi(this);
    skills_ = {{{ui_->comboSkill_1, ui_->comboLeast_1},
                {ui_->comboSkill_2, ui_->comboLeast_2},
                {ui_->comboSkill_3, ui_->comboLeast_3},
                {ui_->comboSkill_4, ui_->comboLeast_4}}};
    fill(*ui_->comboTeam, {every_team()}, 0);
    fill(*ui_->comboRole, roles(), 0);
    for (const SkillWish& wish : skills_) {
        fill(*wish.skill, skills(), 0);
        fill(*wish.least, values(), first_least - lowest_skill);
        follow(*wish.skill);
        follow(*wish.least);
        connect(wish.skill, &QComboBox::currentIndexChanged, this, [&wish] { show_least(*wish.skill, *wish.least); });
        show_least(*wish.skill, *wish.least);
    }
    follow(*ui_->comboTeam);
    follow(*ui_->comboRole);
    connect(ui_->fieldName, &QLineEdit::textChanged, this, &WishBar::changed);
    connect(ui_->buttonReset, &QPushButton::clicked, this, &WishBar::reset);
    ui_->fieldName->installEventFilter(this);
}

WishBar::~WishBar() = default;

void WishBar::follow(PickCombo& combo) {
    connect(&combo, &QComboBox::currentIndexChanged, this, [this, &combo](int row) {
        combo.show_text(combo.itemText(row), row);
        Q_EMIT changed();
    });
}

void WishBar::name_teams(const Report& report) {
    if (report.teams.empty()) return;
    QStringList rows{every_team()};
    for (const ReportTeam& team : report.teams) rows << title_of(report, team.team);
    PickCombo& combo = *ui_->comboTeam;
    if (rows == combo.rows()) return;
    const int row = combo.currentIndex();
    const QSignalBlocker quiet(combo);
    fill(combo, rows, row);
}

void WishBar::take_name() {
    ui_->fieldName->setFocus(Qt::ShortcutFocusReason);
    ui_->fieldName->selectAll();
}

PlayerWish WishBar::wish() const {
    PlayerWish wish;
    wish.name = ui_->fieldName->text().trimmed().toStdString();
    // The lists begin with the row that wishes nothing.
    if (const int row = ui_->comboTeam->currentIndex(); row > 0) wish.team = Team(row - 1);
    if (const int row = ui_->comboRole->currentIndex(); row > 0) {
        const auto role = role_rows.at(static_cast<std::size_t>(row - 1));
        wish.role = static_cast<int>(std::ranges::find(role_texts, role) - role_texts.begin());
    }
    for (const SkillWish& each : skills_) {
        if (each.skill->currentIndex() <= 0) continue;
        int& least = wish.least.at(static_cast<std::size_t>(each.skill->currentIndex() - 1));
        least = std::max(least, lowest_skill + each.least->currentIndex());
    }
    return wish;
}

void WishBar::reset() {
    {
        const QSignalBlocker once(this);
        ui_->fieldName->clear();
        ui_->comboTeam->setCurrentIndex(0);
        ui_->comboRole->setCurrentIndex(0);
        for (const SkillWish& wish : skills_) {
            wish.skill->setCurrentIndex(0);
            wish.least->setCurrentIndex(first_least - lowest_skill);
        }
    }
    Q_EMIT changed();
    take_name();
}

bool WishBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->fieldName && event->type() == QEvent::KeyPress) {
        auto* const key = static_cast<QKeyEvent*>(event);
        if (moves_in_rows(*key)) {
            Q_EMIT key_for_rows(key);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace kalco::app
