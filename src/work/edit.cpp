#include "work/edit.h"

#include "work/settle.h"

namespace kalco {

std::vector<SectorChange> Edit::settle() {
    return kalco::settle(image_, path_);
}

void Edit::commit(std::string_view what) {
    settle();
    if (!dry_run_) image_.commit(what);
}

}  // namespace kalco
