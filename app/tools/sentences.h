#pragma once

#include <span>
#include <string_view>

namespace kalco::app {

/// A sentence of the core and its translation, both UTF-8. "{}" stands for a part that differs from time to time; the
/// Italian sentence has the same parts in the same order, or leaves out the last ones. There it is "{}" for a part that
/// is taken over, "{t}" for one that is a sentence itself and "{s}" for the name of a sheet.
struct Sentence {
    std::string_view english;
    std::string_view italian;
};

/// All of them. Where several fit a text the first one counts.
std::span<const Sentence> sentences();

}  // namespace kalco::app
