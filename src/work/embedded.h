#pragma once

#include <span>
#include <string_view>

/// Files of assets/ that are compiled in, so that no program looks for them.
namespace kalco {

struct EmbeddedFile {
    std::string_view name;  ///< Without its ending.
    std::string_view text;
};

/// The parts of the portrait, by name: SVG, 160 by 160, in the colours of the palettes' tokens.
std::span<const EmbeddedFile> portrait_parts();

/// "style" (CSS) and "script" of the report page.
std::span<const EmbeddedFile> report_files();

}  // namespace kalco
