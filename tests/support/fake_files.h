#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "disc/image/file_system.h"
#include "support/paged_bytes.h"

namespace kalco::test {

/// The process ends: what every call throws from the fatal one on.
struct Killed {};

/// Something goes wrong at one call.
struct CallFault {
    enum class Kind {
        none,
        fails,         ///< With `code`, and has done nothing.
        goes_halfway,  ///< Reads and writes move half of their bytes; other calls are as ever.
        killed_before,
        killed_after,
    };
    Kind kind = Kind::none;
    int code = 0;  ///< An errno.
};

/// A file system in memory that knows what has reached the disk and what has not: one directory whose names, like the
/// files' bytes, are safe only once they are synced. A sync that fails may have lost anything of what it was to bring
/// there, and the next one succeeds without it, as on real systems.
class FakeFiles final : public FileSystem {
public:
    FakeFiles() = default;
    FakeFiles(FakeFiles&&) = default;
    FakeFiles& operator=(FakeFiles&&) = default;

    // For a test's hands; these are no calls.
    void put(const std::string& name, std::string bytes) { put(name, PagedBytes(std::move(bytes))); }
    void put(const std::string& name, const PagedBytes& bytes);
    std::string bytes(const std::string& name) const { return contents(name).all(); }
    /// Costs what was changed since the file was put there.
    const PagedBytes& contents(const std::string& name) const { return names_.at(name)->now; }
    bool has(const std::string& name) const { return names_.contains(name); }
    std::size_t count() const { return names_.size(); }
    void erase(const std::string& name);
    void rename(const std::string& from, const std::string& to);
    /// Nothing can be made or removed any more.
    void protect_directory() { directory_protected_ = true; }
    bool holds_descriptors() const { return !descriptors_.empty(); }

    /// Counts the calls from 1; at that number the fault happens. 0: never.
    void plan(int call, CallFault fault = {});
    /// What was called since the plan, one word each, and on which file.
    const std::vector<std::string>& log() const { return log_; }

    /// The same files, which go their own way from here on. Nothing may be open.
    FakeFiles copy() const;

    /// The process ends: descriptors and locks go, what was written stays.
    void end_process();
    /// The machine stops: of what was not synced any part may be lost, as chance decides; without it all is.
    void stop_machine(std::mt19937* chance);

    int open(const std::string& path, Access access) override;
    int create(const std::string& path, unsigned permissions) override;
    void close(int fd) override;
    int about(int fd, About& about) override;
    int about_path(const std::string& path, About& about) override;
    int lock(int fd) override;
    std::int64_t read(int fd, char* to, std::size_t bytes, std::int64_t offset) override;
    std::int64_t write(int fd, const char* from, std::size_t bytes, std::int64_t offset) override;
    int truncate(int fd, std::int64_t size) override;
    int sync(int fd) override;
    int remove(const std::string& path) override;
    std::string resolved(const std::string& path) override { return path; }

private:
    /// Bytes that may not have reached the disk, at most one page; or, without bytes, a new size.
    struct Change {
        std::int64_t place = 0;
        std::string bytes;
    };
    struct File {
        std::uint64_t number = 0;
        PagedBytes now;
        PagedBytes on_disk;
        std::vector<Change> pending;
    };
    using FilePointer = std::shared_ptr<File>;
    struct Open {
        FilePointer file;  ///< Empty: the directory.
        std::string name;
        bool locked = false;
    };

    /// One call: what the plan says of it, around `steps`.
    template <typename Steps>
    auto call(const std::string& what, Steps steps);
    static About about_file(const File& file);
    static void settle(File& file, std::mt19937* chance);
    int add(const FilePointer& file, const std::string& name);

    std::map<std::string, FilePointer> names_;
    std::map<std::string, FilePointer> names_on_disk_;
    std::map<int, Open> descriptors_;
    int next_descriptor_ = 3;
    std::uint64_t next_number_ = 1;
    bool directory_protected_ = false;

    std::vector<std::string> log_;
    std::size_t fatal_call_ = 0;
    CallFault fault_;
    bool halfway_ = false;
    bool dead_ = false;
    std::mt19937 chance_{1};
};

}  // namespace kalco::test
