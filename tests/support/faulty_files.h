#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include "support/fake_files.h"

namespace kalco::test {

/// The real file system, with a fault at one of its calls. A process that is killed closes its descriptors, and does
/// nothing more.
class FaultyFiles final : public FileSystem {
public:
    /// Counts the calls from 1; at that number the fault happens. 0: never.
    void plan(int call, CallFault fault = {}) {
        log_.clear();
        fatal_call_ = static_cast<std::size_t>(call);
        fault_ = fault;
        dead_ = false;
    }
    const std::vector<std::string>& log() const { return log_; }

    int open(const std::string& path, Access access) override {
        return call("open", [&] { return below_.open(path, access); });
    }
    int create(const std::string& path, unsigned permissions) override {
        return call("create", [&] { return below_.create(path, permissions); });
    }
    void close(int fd) override { below_.close(fd); }
    int about(int fd, About& about) override {
        return call("about", [&] { return below_.about(fd, about); });
    }
    int about_path(const std::string& path, About& about) override {
        return call("look", [&] { return below_.about_path(path, about); });
    }
    int lock(int fd) override {
        return call("lock", [&] { return below_.lock(fd); });
    }
    std::int64_t read(int fd, char* to, std::size_t bytes, std::int64_t offset) override {
        return call("read", [&] { return below_.read(fd, to, halfway_ ? (bytes + 1) / 2 : bytes, offset); });
    }
    std::int64_t write(int fd, const char* from, std::size_t bytes, std::int64_t offset) override {
        return call("write", [&] { return below_.write(fd, from, halfway_ ? (bytes + 1) / 2 : bytes, offset); });
    }
    int truncate(int fd, std::int64_t size) override {
        return call("truncate", [&] { return below_.truncate(fd, size); });
    }
    int sync(int fd) override {
        return call("sync", [&] { return below_.sync(fd); });
    }
    int remove(const std::string& path) override {
        return call("remove", [&] { return below_.remove(path); });
    }
    std::string resolved(const std::string& path) override { return below_.resolved(path); }

private:
    template <typename Steps>
    std::invoke_result_t<Steps> call(const char* what, Steps steps) {
        if (dead_) throw Killed();
        log_.emplace_back(what);
        const CallFault fault = log_.size() == fatal_call_ ? fault_ : CallFault();
        using Result = std::invoke_result_t<Steps>;
        if (fault.kind == CallFault::Kind::fails) return static_cast<Result>(-fault.code);
        dead_ = fault.kind == CallFault::Kind::killed_before || fault.kind == CallFault::Kind::killed_after;
        if (fault.kind == CallFault::Kind::killed_before) throw Killed();
        halfway_ = fault.kind == CallFault::Kind::goes_halfway;
        const Result result = steps();
        halfway_ = false;
        if (dead_) throw Killed();
        return result;
    }

    FileSystem& below_ = system_files();
    std::vector<std::string> log_;
    std::size_t fatal_call_ = 0;
    CallFault fault_;
    bool halfway_ = false;
    bool dead_ = false;
};

}  // namespace kalco::test
