#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ctl/demo/demo_image.h"
#include "editor/editor.h"
#include "editor/window/user.h"
#include "support/fake_platform.h"
#include "support/temporary_home.h"

namespace kalco::bench {

/// One transfer that an operation makes.
struct Transfer {
    bool write;
    std::int64_t offset;
    std::string bytes;  ///< What is written, or as many bytes as are read.
};

/// Notes the transfers of the storage below it while it is asked to.
class NotingStorage final : public Storage {
public:
    NotingStorage(std::unique_ptr<Storage> below, std::vector<Transfer>*& notes)
        : below_(std::move(below)),
          notes_(notes) {}

    std::string read(std::int64_t offset, std::size_t bytes) override {
        std::string result = below_->read(offset, bytes);
        if (notes_ != nullptr) notes_->push_back({false, offset, result});
        return result;
    }
    void write(std::int64_t offset, std::string_view bytes) override {
        if (notes_ != nullptr) notes_->push_back({true, offset, std::string(bytes)});
        below_->write(offset, bytes);
    }
    std::int64_t size() override { return below_->size(); }
    void truncate(std::int64_t size) override { below_->truncate(size); }
    // The disk's own time is no part of what is compared.
    void flush() override {}

private:
    std::unique_ptr<Storage> below_;
    std::vector<Transfer>*& notes_;
};

/// An editor on a demo image in a file of its own.
class Desk {
public:
    Desk()
        : editor(platform, [this](const std::string& path) -> std::unique_ptr<Storage> {
              return std::make_unique<NotingStorage>(open_file(path), notes_);
          }) {
        platform.home = home.path();
        demo::write_image(demo::make_demo_disc(1), image_path(), false, [](std::uint32_t) {});
        platform.choices.push_back(image_path());
        user::start(form);
    }

    std::string image_path() const { return home.path("disc.bin"); }

    /// Times `operation`, or the bare loop of the same reads and writes, by the benchmark's argument (0 or 1).
    void compare(benchmark::State& state, const std::function<void()>& operation) {
        std::vector<Transfer> transfers;
        notes_ = &transfers;
        operation();
        notes_ = nullptr;
        if (state.range(0) == 0) {
            state.SetLabel("the editor");
            for (auto _ : state) {
                operation();
                platform.messages.clear();
            }
            return;
        }
        state.SetLabel("bare loop of its " + std::to_string(transfers.size()) + " transfers");
        form.image.close();
        const auto storage = open_file(image_path());
        for (auto _ : state) {
            for (const Transfer& transfer : transfers) {
                if (transfer.write) {
                    storage->write(transfer.offset, transfer.bytes);
                } else {
                    benchmark::DoNotOptimize(storage->read(transfer.offset, transfer.bytes.size()));
                }
            }
        }
    }

private:
    std::vector<Transfer>* notes_ = nullptr;

public:
    test::TemporaryHome home;
    test::FakePlatform platform;
    Editor editor;
    frmKalco& form = editor.form;
};

}  // namespace kalco::bench
