#include "work/edit.h"

#include "work/settle.h"

namespace kalco {

std::vector<SectorChange> Edit::settle() {
    kalco::settle(image_, path_);
    return image_.changes();
}

void Edit::commit(std::string_view what) {
    kalco::settle(image_, path_);
    if (!dry_run_) image_.commit(what);
}

}  // namespace kalco
