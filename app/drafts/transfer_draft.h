#pragma once

#include "app/drafts/draft.h"
#include "app/drafts/listeners.h"
#include "editor/window/frmKalco.h"

namespace kalco::app {

/// The exchanges in one of the two team files of the transfers.
class TransferDraft : public DraftWatch {
public:
    struct Side {
        CommandButton& open;
        CommandButton& save;
        TextBox& team;
        ListBox& names;
        ListBox& lines;
    };

    TransferDraft(frmKalco& form, Side side, Listeners& listeners);

protected:
    Draft now() override;

private:
    bool file_holds_lines() const;

    frmKalco& form_;
    Side side_;
    std::vector<std::string> stored_;  ///< The lines as they were opened or saved.
};

TransferDraft::Side first_transfer_side(frmKalco& form);
TransferDraft::Side second_transfer_side(frmKalco& form);

}  // namespace kalco::app
