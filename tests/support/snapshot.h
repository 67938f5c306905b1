#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "ctl/script/json_lines.h"
#include "editor/window/frmKalco.h"

namespace kalco::test {

/// The state of every control by its name: what the script runner shows, with the control's own enabled state.
class Snapshot {
public:
    using Json = script::Json;

    explicit Snapshot(const frmKalco& form);

    Json& operator[](const std::string& name) { return states_.at(name); }

    void set_enabled(std::initializer_list<const char*> names, bool enabled);
    void set_text(const std::string& name, const std::string& text);
    void set_items(const std::string& name, const std::vector<std::string>& items, int row = -1);

    /// What differs from the expected states, one control a line.
    ::testing::AssertionResult is(const Snapshot& expected) const;

private:
    std::map<std::string, Json> states_;
};

/// Fills, selects and enables everything, so that a reset shows. The first row of each list is not the selected one.
void disturb(frmKalco& form);

}  // namespace kalco::test
