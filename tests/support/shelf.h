#pragma once

#include <map>
#include <string>

#include "support/memory_storage.h"

namespace kalco::test {

/// Several images in memory by their paths, and paths that fail to open with a number.
class Shelf {
public:
    StorageOpener opener() {
        return [this](const std::string& path) -> std::unique_ptr<Storage> {
            opened.push_back(path);
            if (const auto failure = failures.find(path); failure != failures.end())
                throw RuntimeError(failure->second);
            const auto found = discs.find(path);
            if (path.empty() || found == discs.end()) {
                throw RuntimeError(path.empty() ? error::path_access : error::file_not_found);
            }
            return opener_of(found->second)(path);
        };
    }

    std::map<std::string, Disc> discs;
    std::map<std::string, int> failures;
    /// Every path that was to be opened, in order.
    std::vector<std::string> opened;
};

}  // namespace kalco::test
