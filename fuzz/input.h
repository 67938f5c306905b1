#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "disc/runtime_error.h"

/// What every fuzzer stands on.
namespace kalco::fuzz {

/// A finding: something that any input must keep is broken.
void require(bool holds, const char* what = "what any input must keep");

/// The number of the error that ends the steps, 0 for none; nothing but numbered errors may leave the editor.
template <typename Steps>
int attempt(Steps steps) {
    try {
        steps();
        return 0;
    } catch (const RuntimeError& failure) {
        return failure.number();
    }
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

}  // namespace kalco::fuzz
