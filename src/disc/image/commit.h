#pragma once

#include "disc/image/save.h"
#include "disc/image/storage.h"

namespace kalco {

/// Brings a save to the disk. When anything on the way fails, the image is put back as it was and the failure is
/// thrown. True when there was a journal: that it is gone is for sync_directory() to bring to the disk.
bool commit_save(Storage& storage, const Save& save);

}  // namespace kalco
