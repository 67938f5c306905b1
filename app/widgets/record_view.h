#pragma once

#include <QWidget>
#include <vector>

namespace kalco::app {

/// A player at a glance: a few facts, then the skills as bars.
struct PlayerSummary {
    QString name;
    QStringList facts;
    struct Skill {
        QString name;
        int value = 0;
    };
    std::vector<Skill> skills;

    bool empty() const { return facts.isEmpty() && skills.empty(); }
};

/// Shows a player's record for reading only.
class RecordView : public QWidget {
    Q_OBJECT

public:
    explicit RecordView(QWidget* parent = nullptr);

    void show_player(const PlayerSummary& player);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int skill_name_width() const;
    int number_width() const;
    int bar_width() const;

    PlayerSummary player_;
};

}  // namespace kalco::app
