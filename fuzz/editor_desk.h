#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "disc/runtime_error.h"
#include "editor/editor.h"
#include "editor/window/user.h"
#include "support/fake_platform.h"
#include "support/memory_storage.h"
#include "support/temporary_home.h"

namespace kalco::fuzz {

/// A finding: a property that any input must keep is broken.
inline void require(bool holds) {
    if (!holds) std::abort();
}

/// Bytes of an input, taken from the front; zero when there are no more.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    int next() {
        if (size_ == 0) return 0;
        --size_;
        return *data_++;
    }
    std::string rest() const { return {reinterpret_cast<const char*>(data_), size_}; }

private:
    const std::uint8_t* data_;
    std::size_t size_;
};

/// An editor on an image in memory, with a directory for side files that all inputs share.
class EditorDesk {
public:
    explicit EditorDesk(const std::string& image) : editor(platform, test::opener_of(disc)) {
        disc.bytes = image;
        platform.home = home().path();
        platform.choices.emplace_back("disc.bin");
        attempt([this] { user::start(form); });
    }

    /// The number of the error that ends the steps, 0 for none; nothing but numbered errors may leave the editor.
    template <typename Steps>
    static int attempt(Steps steps) {
        try {
            steps();
            return 0;
        } catch (const RuntimeError& failure) {
            return failure.number();
        }
    }

    /// A side file with these bytes is the answer of the next dialog.
    void choose_file(const std::string& bytes) { platform.choices.push_back(home().write("side.file", bytes)); }

    static const test::TemporaryHome& home() {
        static const test::TemporaryHome directory;
        return directory;
    }

    test::Disc disc;
    test::FakePlatform platform;
    Editor editor;
    frmKalco& form = editor.form;
};

}  // namespace kalco::fuzz
