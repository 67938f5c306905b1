#pragma once

#include <array>

#include "app/drafts/player_draft.h"
#include "app/drafts/record_draft.h"
#include "app/drafts/transfer_draft.h"

namespace kalco::app {

/// All that is unsaved in the window, and what an action dropped of it.
class Drafts {
public:
    explicit Drafts(frmKalco& form);

    /// After an action: the drafts that it dropped.
    std::vector<Draft> look();

    const Draft& names() const { return names_.draft(); }
    const Draft& player() const { return player_.draft(); }
    const Draft& set_pieces() const { return set_pieces_.draft(); }
    const Draft& first_file() const { return first_file_.draft(); }
    const Draft& second_file() const { return second_file_.draft(); }
    const Draft& pitch() const { return pitch_.draft(); }
    const Draft& bars() const { return bars_.draft(); }
    const Draft& numbers() const { return numbers_.draft(); }

    Listeners& listeners() { return listeners_; }

private:
    Listeners listeners_;
    NamesDraft names_;
    PlayerDraft player_;
    SetPiecesDraft set_pieces_;
    TransferDraft first_file_;
    TransferDraft second_file_;
    PitchDraft pitch_;
    BarsDraft bars_;
    NumbersDraft numbers_;
    bool other_image_ = false;
};

}  // namespace kalco::app
