#pragma once

#include "app/drafts/draft.h"
#include "editor/window/frmKalco.h"

namespace kalco::app {

/// Fields against what they were when they were last filled.
class FieldDraft : public DraftWatch {
protected:
    struct Field {
        QString name;
        Control* control;
        std::string filled = {};  ///< What it was filled with.
    };

    explicit FieldDraft(std::vector<Field> fields) : fields_(std::move(fields)) {}

    /// The fields stand as they were filled.
    void take_fields();
    std::vector<DraftChange> changes() const;
    /// Types the texts of the changes into their fields, as they stand now.
    std::function<void()> typing(frmKalco& form) const;

private:
    std::vector<Field> fields_;
};

}  // namespace kalco::app
