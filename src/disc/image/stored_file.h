#pragma once

#include <string>
#include <utility>

#include "disc/image/descriptor.h"
#include "disc/image/failures.h"
#include "disc/image/journal.h"
#include "disc/image/sector_buffer.h"
#include "disc/image/storage.h"

namespace kalco {

/// An image of the system, without a journal.
class StoredFile : public Storage {
public:
    StoredFile(Descriptor file, Failures failures) : file_(std::move(file)), failures_(std::move(failures)) {}

    std::string read(std::int64_t offset, std::size_t bytes) final;
    void read_into(std::int64_t offset, std::span<char> bytes) override;
    void write(std::int64_t offset, std::string_view bytes) override;
    std::int64_t size() override { return about().size; }
    void truncate(std::int64_t size) override;
    void flush() override;

protected:
    FileSystem::About about() const;
    const Failures& failures() const { return failures_; }

private:
    Descriptor file_;
    Failures failures_;
};

/// A file whose saves have a journal beside it.
class JournaledFile final : public StoredFile {
public:
    /// Deals with what lies at the journal's place.
    JournaledFile(Descriptor file, Failures failures, JournalPlace place);

    bool keep_journal(const Save& save) override;
    void remove_journal() override;
    void sync_directory() override;
    Beside found() const override { return found_; }

private:
    void recover();

    JournalPlace place_;
    Beside found_ = Beside::nothing;
};

/// A file to be read as it was before a save that was interrupted.
class ReadOnlyFile final : public StoredFile {
public:
    ReadOnlyFile(Descriptor file, Failures failures, const JournalPlace& place);

    void read_into(std::int64_t offset, std::span<char> bytes) override;
    std::int64_t size() override { return before_.length(); }
    bool keep_journal(const Save& save) override;

private:
    /// The sectors that the interrupted save was to change.
    SectorBuffer before_;
};

}  // namespace kalco
