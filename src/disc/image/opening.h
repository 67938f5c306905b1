#pragma once

#include <memory>
#include <string>

#include "disc/image/failures.h"
#include "disc/image/file_system.h"
#include "disc/image/storage.h"

namespace kalco {

/// What open_file, open_to_write and open_to_read do, on any file system.
std::unique_ptr<Storage> open_for_saves(FileSystem& files, const std::string& path, Failures::Kind errors);
std::unique_ptr<Storage> open_for_reading(FileSystem& files, const std::string& path);

}  // namespace kalco
