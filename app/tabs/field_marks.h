#pragma once

#include <QString>
#include <unordered_map>

#include "app/binder/binder.h"
#include "app/drafts/draft.h"

namespace kalco::app {

/// Marks the fields of a draft: a strong edge, and what they were in their hints.
class FieldMarks {
public:
    explicit FieldMarks(const Binder& binder) : binder_(binder) {}

    void show(const Draft& draft);

private:
    const Binder& binder_;
    std::unordered_map<QWidget*, QString> own_hints_;  ///< Of the marked widgets.
};

}  // namespace kalco::app
