#pragma once

#include <array>
#include <istream>
#include <streambuf>
#include <string>

namespace kalco::script {

/// The bytes of an open descriptor. Its end is the end of what is read; a read error is an exception, which sets the
/// stream's badbit.
class DescriptorBuffer final : public std::streambuf {
public:
    explicit DescriptorBuffer(int fd) : fd_(fd) {}

protected:
    int_type underflow() override;

private:
    int fd_;
    std::array<char, 1 << 14> bytes_{};
};

/// A script that is read from a file, or from standard input, which is named "" or "-".
class ScriptSource {
public:
    /// Throws FileError when the file can't be opened.
    explicit ScriptSource(const std::string& file);
    ~ScriptSource();
    ScriptSource(const ScriptSource&) = delete;
    ScriptSource& operator=(const ScriptSource&) = delete;

    /// For complaints.
    const std::string& name() const { return name_; }
    std::istream& stream() { return stream_; }

private:
    std::string name_;
    int fd_;
    DescriptorBuffer buffer_;
    std::istream stream_;
};

}  // namespace kalco::script
