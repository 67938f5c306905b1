#include "work/check/sector_check.h"

#include "disc/image/sector_layout.h"

namespace kalco::check {

CheckFields SectorCheck::operator()(std::int64_t number, SectorKind kind, SectorView sector) {
    return fits(kind, sector) ? CheckFields{} : bad_fields(number, sector);
}

bool SectorCheck::fits(SectorKind kind, SectorView sector) {
    using layout::edc_bytes, layout::form1_edc, layout::form2_edc, layout::mode1_edc, layout::parity_start,
        layout::sub_header;
    const auto area = sector.subspan<parity_start>();
    switch (kind) {
        case SectorKind::mode1:
            return edc_fits_(sector.first<mode1_edc + edc_bytes>()) && parities_fit_(area, Header::counts, rows_);
        case SectorKind::form1:
            return edc_fits_(sector.subspan<sub_header, form1_edc + edc_bytes - sub_header>()) &&
                   parities_fit_(area, Header::counts_as_zero, rows_);
        case SectorKind::form2: return edc_fits_(sector.subspan<sub_header, form2_edc + edc_bytes - sub_header>());
        case SectorKind::other: break;
    }
    return true;
}

}  // namespace kalco::check
