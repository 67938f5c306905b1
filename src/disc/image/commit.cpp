#include "disc/image/commit.h"

namespace kalco {
namespace {

void write_sectors(Storage& storage, const Save& save) {
    for (const SectorChange& change : save.sectors) {
        if (!change.after.empty()) storage.write(change.offset(), change.after);
    }
    if (save.length_after < save.length_before) storage.truncate(save.length_after);
}

void write_back(Storage& storage, const Save& save) {
    for (const SectorChange& change : save.sectors) {
        if (!change.before.empty()) storage.write(change.offset(), change.before);
    }
    if (save.length_after != save.length_before) storage.truncate(save.length_before);
}

/// After a failure on the way. What fails here leaves the journal where it is, for the next opening.
void take_back(Storage& storage, const Save& save, bool journal) {
    try {
        write_back(storage, save);
        storage.flush();
        if (!journal) return;
        storage.remove_journal();
        storage.sync_directory();
    } catch (...) {
        // The first failure is the one that is told.
    }
}

/// After a flush that failed. A second one could succeed without the bytes: nobody knows any more what is on the disk.
void take_back_unflushed(Storage& storage, const Save& save) {
    try {
        write_back(storage, save);
    } catch (...) {
        // The same.
    }
}

template <typename Steps, typename After>
void with_way_back(Steps steps, After after) {
    try {
        steps();
    } catch (...) {
        after();
        throw;
    }
}

}  // namespace

bool commit_save(Storage& storage, const Save& save) {
    const bool journal = storage.keep_journal(save);
    const auto back = [&] { take_back(storage, save, journal); };
    with_way_back([&] { write_sectors(storage, save); }, back);
    with_way_back([&] { storage.flush(); }, [&] { take_back_unflushed(storage, save); });
    if (journal) with_way_back([&] { storage.remove_journal(); }, back);
    return journal;
}

}  // namespace kalco
