#pragma once

#include <cstdint>

#include "disc/image/sector.h"
#include "work/check/edc.h"
#include "work/check/parities.h"

namespace kalco::check {

/// Checks one sector after the other, fast where they fit. One for each thread.
class SectorCheck {
public:
    /// The fastest way on this processor.
    SectorCheck() : SectorCheck(edc_methods().back().fits, parity_methods().back().fit) {}
    SectorCheck(EdcFits edc_fits, ParitiesFit parities_fit) : edc_fits_(edc_fits), parities_fit_(parities_fit) {}

    /// bad_fields() of sector `number`, of the kind `kind`.
    CheckFields operator()(std::int64_t number, SectorKind kind, SectorView sector);

private:
    bool fits(SectorKind kind, SectorView sector);

    EdcFits edc_fits_;
    ParitiesFit parities_fit_;
    DiagonalRows rows_;
};

}  // namespace kalco::check
