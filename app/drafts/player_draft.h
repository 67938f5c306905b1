#pragma once

#include "app/drafts/field_draft.h"
#include "app/drafts/listeners.h"

namespace kalco::app {

/// The fields of the shown player.
class PlayerDraft : public FieldDraft {
public:
    PlayerDraft(frmKalco& form, Listeners& listeners);

protected:
    Draft now() override;

private:
    static std::vector<Field> player_fields(frmKalco& form);
    void take_player();

    frmKalco& form_;
    int team_ = -1;
    int row_ = -1;
    QString player_;
    bool importing_ = false;
};

/// The names of the chosen team.
class NamesDraft : public FieldDraft {
public:
    NamesDraft(frmKalco& form, Listeners& listeners);

protected:
    Draft now() override;

private:
    void take_names();

    frmKalco& form_;
    int team_ = -1;
    bool importing_ = false;
};

}  // namespace kalco::app
