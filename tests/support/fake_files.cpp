#include "support/fake_files.h"

#include <cerrno>
#include <utility>

namespace kalco::test {
namespace {

bool coin(std::mt19937& chance) {
    return (chance() & 1U) != 0;
}

}  // namespace

void FakeFiles::put(const std::string& name, const PagedBytes& bytes) {
    const auto file = std::make_shared<File>();
    file->number = next_number_++;
    file->now = file->on_disk = bytes;
    names_[name] = names_on_disk_[name] = file;
}

void FakeFiles::erase(const std::string& name) {
    names_.erase(name);
    names_on_disk_.erase(name);
}

void FakeFiles::rename(const std::string& from, const std::string& to) {
    names_[to] = names_on_disk_[to] = names_.at(from);
    erase(from);
}

FakeFiles FakeFiles::copy() const {
    FakeFiles result;
    std::map<FilePointer, FilePointer> copies;
    const auto copy_names = [&copies](const auto& from, auto& to) {
        for (const auto& [name, file] : from) {
            FilePointer& copied = copies[file];
            if (!copied) copied = std::make_shared<File>(*file);
            to[name] = copied;
        }
    };
    copy_names(names_, result.names_);
    copy_names(names_on_disk_, result.names_on_disk_);
    result.next_number_ = next_number_;
    result.directory_protected_ = directory_protected_;
    return result;
}

void FakeFiles::plan(int call, CallFault fault) {
    log_.clear();
    fatal_call_ = static_cast<std::size_t>(call);
    fault_ = fault;
}

void FakeFiles::end_process() {
    descriptors_.clear();
    dead_ = false;
    plan(0);
}

void FakeFiles::stop_machine(std::mt19937* chance) {
    end_process();
    // Of a name that was made or removed, the old state or the new one.
    std::map<std::string, FilePointer> left;
    const auto keep = [&](const auto& names, const auto& others) {
        for (const auto& [name, file] : names) {
            const auto other = others.find(name);
            const bool settled = other != others.end() && other->second == file;
            if (settled || (chance != nullptr ? coin(*chance) : &names == &names_on_disk_)) left.emplace(name, file);
        }
    };
    keep(names_on_disk_, names_);
    keep(names_, names_on_disk_);
    for (const auto& [name, file] : left) {
        settle(*file, chance);
        file->now = file->on_disk;
    }
    names_ = names_on_disk_ = left;
}

void FakeFiles::settle(File& file, std::mt19937* chance) {
    for (const Change& change : std::exchange(file.pending, {})) {
        if (chance == nullptr || !coin(*chance)) continue;
        if (change.bytes.empty()) {
            file.on_disk.resize(change.place);
        } else {
            file.on_disk.write(change.place, change.bytes);
        }
    }
}

template <typename Steps>
auto FakeFiles::call(const std::string& what, Steps steps) {
    using Result = decltype(steps());
    if (dead_) throw Killed();
    log_.push_back(what);
    const CallFault fault = log_.size() == fatal_call_ ? fault_ : CallFault();
    if (fault.kind == CallFault::Kind::fails) return static_cast<Result>(-fault.code);
    dead_ = fault.kind == CallFault::Kind::killed_before || fault.kind == CallFault::Kind::killed_after;
    if (fault.kind == CallFault::Kind::killed_before) throw Killed();
    halfway_ = fault.kind == CallFault::Kind::goes_halfway;
    const Result result = steps();
    halfway_ = false;
    if (dead_) throw Killed();
    return result;
}

int FakeFiles::add(const FilePointer& file, const std::string& name) {
    descriptors_[next_descriptor_] = {file, name};
    return next_descriptor_++;
}

int FakeFiles::open(const std::string& path, Access access) {
    return call("open " + path, [&] {
        if (access == Access::directory) return add(nullptr, path);
        const auto found = names_.find(path);
        return found == names_.end() ? -ENOENT : add(found->second, path);
    });
}

int FakeFiles::create(const std::string& path, unsigned /*permissions*/) {
    return call("create " + path, [&] {
        if (has(path)) return -EEXIST;
        if (directory_protected_) return -EACCES;
        names_[path] = std::make_shared<File>();
        names_[path]->number = next_number_++;
        return add(names_[path], path);
    });
}

void FakeFiles::close(int fd) {
    // A process that was killed has closed its files already.
    if (!dead_) descriptors_.erase(fd);
}

FileSystem::About FakeFiles::about_file(const File& file) {
    return {Kind::file, file.now.size(), 1, file.number, 0644};
}

int FakeFiles::about(int fd, About& about) {
    return call("about " + descriptors_[fd].name, [&] {
        about = about_file(*descriptors_[fd].file);
        return 0;
    });
}

int FakeFiles::about_path(const std::string& path, About& about) {
    return call("look " + path, [&] {
        const auto found = names_.find(path);
        if (found == names_.end()) return -ENOENT;
        about = about_file(*found->second);
        return 0;
    });
}

int FakeFiles::lock(int fd) {
    return call("lock " + descriptors_[fd].name, [&] {
        for (const auto& [other, open] : descriptors_) {
            if (open.locked && open.file == descriptors_[fd].file) return -EWOULDBLOCK;
        }
        descriptors_[fd].locked = true;
        return 0;
    });
}

std::int64_t FakeFiles::read(int fd, char* to, std::size_t bytes, std::int64_t offset) {
    return call("read " + descriptors_[fd].name, [&] {
        const std::string got = descriptors_[fd].file->now.read(offset, halfway_ ? (bytes + 1) / 2 : bytes);
        got.copy(to, got.size());
        return static_cast<std::int64_t>(got.size());
    });
}

std::int64_t FakeFiles::write(int fd, const char* from, std::size_t bytes, std::int64_t offset) {
    return call("write " + descriptors_[fd].name, [&] {
        File& file = *descriptors_[fd].file;
        const std::string_view whole(from, halfway_ ? (bytes + 1) / 2 : bytes);
        file.now.write(offset, whole);
        for (std::string_view rest = whole; !rest.empty();) {
            const std::int64_t place = offset + static_cast<std::int64_t>(whole.size() - rest.size());
            const auto room = static_cast<std::size_t>(PagedBytes::page_bytes - place % PagedBytes::page_bytes);
            file.pending.push_back({place, std::string(rest.substr(0, room))});
            rest.remove_prefix(std::min(room, rest.size()));
        }
        return static_cast<std::int64_t>(whole.size());
    });
}

int FakeFiles::truncate(int fd, std::int64_t size) {
    return call("truncate " + descriptors_[fd].name, [&] {
        File& file = *descriptors_[fd].file;
        file.now.resize(size);
        file.pending.push_back({size, {}});
        return 0;
    });
}

int FakeFiles::sync(int fd) {
    const Open& open = descriptors_[fd];
    const int result = call("sync " + open.name, [&] {
        if (!open.file) {
            names_on_disk_ = names_;
        } else {
            open.file->on_disk = open.file->now;
            open.file->pending.clear();
        }
        return 0;
    });
    if (result < 0 && result != -EINTR && open.file) settle(*open.file, &chance_);
    return result;
}

int FakeFiles::remove(const std::string& path) {
    return call("remove " + path, [&] {
        if (!has(path)) return -ENOENT;
        if (directory_protected_) return -EACCES;
        names_.erase(path);
        return 0;
    });
}

}  // namespace kalco::test
