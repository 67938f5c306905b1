#pragma once

#include <QWidget>
#include <array>
#include <memory>

#include "app/tools/search/player_search.h"

class QKeyEvent;

namespace Ui {
class WishBar;
}

namespace kalco::app {

class PickCombo;

/// The fields that tell which players are looked for: name, team, role, least skills.
class WishBar : public QWidget {
    Q_OBJECT

public:
    explicit WishBar(QWidget* parent = nullptr);
    ~WishBar() override;

    PlayerWish wish() const;
    /// The teams to choose from; without any, those that are there stay.
    void name_teams(const Report& report);
    /// The name is ready to be typed.
    void take_name();

Q_SIGNALS:
    void changed();
    /// The name leaves the keys that move up and down to the rows.
    void key_for_rows(QKeyEvent* key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// One skill and the least value of it.
    struct SkillWish {
        PickCombo* skill = nullptr;
        PickCombo* least = nullptr;
    };

    void follow(PickCombo& combo);
    void reset();

    std::unique_ptr<Ui::WishBar> ui_;
    std::array<SkillWish, 4> skills_{};
};

}  // namespace kalco::app
