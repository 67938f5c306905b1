#include "app/drafts/field_draft.h"

#include <utility>

#include "app/drafts/typing.h"
#include "app/text.h"

namespace kalco::app {

void FieldDraft::take_fields() {
    for (Field& field : fields_) field.filled = text_of(*field.control);
}

std::vector<DraftChange> FieldDraft::changes() const {
    std::vector<DraftChange> result;
    for (const Field& field : fields_) {
        const std::string& text = text_of(*field.control);
        if (text != field.filled) {
            result.push_back({field.name, qt_text(field.filled), qt_text(text), field.control});
        }
    }
    return result;
}

std::function<void()> FieldDraft::typing(frmKalco& form) const {
    std::vector<std::pair<Control*, std::string>> texts;
    for (const Field& field : fields_) {
        const std::string& text = text_of(*field.control);
        if (text != field.filled) texts.emplace_back(field.control, text);
    }
    return [&form, texts] {
        for (const auto& [control, text] : texts) type_text(form, *control, text);
    };
}

}  // namespace kalco::app
