#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "disc/image/image.h"
#include "work/ppf_writer.h"

namespace kalco {

struct PatchSize {
    std::uint64_t records = 0;
    std::uint64_t bytes = 0;
};

/// Is told how many bytes of the images are done.
using PatchProgress = std::function<void(std::int64_t done)>;

/// Compares two images of one length in blocks, each read once, and gives the patch from the first to the second to
/// the sink. Two equal images give nothing. Throws std::invalid_argument for two lengths.
PatchSize make_patch(const Image& original, const Image& edited, std::string_view description,
                     const PpfWriter::Sink& sink, const PatchProgress& progress = {});

}  // namespace kalco
