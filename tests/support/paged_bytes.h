#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace kalco::test {

/// A file's bytes as changed pages over a text that copies share, so that a copy costs what was changed.
class PagedBytes {
public:
    static constexpr std::int64_t page_bytes = 512;

    PagedBytes() : PagedBytes(std::string()) {}
    explicit PagedBytes(std::string bytes)
        : base_(std::make_shared<const std::string>(std::move(bytes))),
          base_size_(static_cast<std::int64_t>(base_->size())),
          size_(base_size_) {}

    std::int64_t size() const { return size_; }

    /// Fewer bytes than `count` at the end.
    std::string read(std::int64_t offset, std::size_t count) const {
        const std::int64_t end = std::min(size_, offset + static_cast<std::int64_t>(count));
        std::string result;
        while (offset < end) {
            const std::int64_t page = offset / page_bytes;
            const std::int64_t bytes = std::min(end, (page + 1) * page_bytes) - offset;
            const auto changed = pages_.find(page);
            if (changed != pages_.end()) {
                result.append(changed->second, static_cast<std::size_t>(offset % page_bytes),
                              static_cast<std::size_t>(bytes));
            } else {
                const std::int64_t held = std::clamp<std::int64_t>(base_size_ - offset, 0, bytes);
                if (held > 0) result.append(*base_, static_cast<std::size_t>(offset), static_cast<std::size_t>(held));
                result.append(static_cast<std::size_t>(bytes - held), '\0');
            }
            offset += bytes;
        }
        return result;
    }
    /// A byte of copies that share their text is looked at only where one of them has changed.
    friend bool operator==(const PagedBytes& one, const PagedBytes& other) {
        if (one.size_ != other.size_) return false;
        if (one.base_ != other.base_ || one.base_size_ != other.base_size_) return one.all() == other.all();
        const auto same_pages = [](const PagedBytes& changed, const PagedBytes& than) {
            return std::all_of(changed.pages_.begin(), changed.pages_.end(), [&](const auto& page) {
                const auto found = than.pages_.find(page.first);
                return page.second == (found != than.pages_.end() ? found->second : than.base_page(page.first));
            });
        };
        return same_pages(one, other) && same_pages(other, one);
    }

    std::string all() const { return read(0, static_cast<std::size_t>(size_)); }

    void write(std::int64_t offset, std::string_view bytes) {
        while (!bytes.empty()) {
            const std::int64_t page = offset / page_bytes;
            const auto start = static_cast<std::size_t>(offset % page_bytes);
            const std::size_t count = std::min(bytes.size(), static_cast<std::size_t>(page_bytes) - start);
            page_to_change(page).replace(start, count, bytes.substr(0, count));
            bytes.remove_prefix(count);
            offset += static_cast<std::int64_t>(count);
            size_ = std::max(size_, offset);
        }
    }

    void resize(std::int64_t size) {
        if (size < size_) {
            // Nothing of what was cut off comes back when the file grows again.
            base_size_ = std::min(base_size_, size);
            pages_.erase(pages_.lower_bound((size + page_bytes - 1) / page_bytes), pages_.end());
            if (const auto last = pages_.find(size / page_bytes); last != pages_.end()) {
                const auto kept = static_cast<std::size_t>(size % page_bytes);
                last->second.replace(kept, std::string::npos, static_cast<std::size_t>(page_bytes) - kept, '\0');
            }
        }
        size_ = size;
    }

private:
    std::string base_page(std::int64_t page) const {
        std::string bytes;
        const std::int64_t start = page * page_bytes;
        if (start < base_size_) {
            bytes = base_->substr(static_cast<std::size_t>(start),
                                  static_cast<std::size_t>(std::min(page_bytes, base_size_ - start)));
        }
        bytes.resize(page_bytes, '\0');
        return bytes;
    }
    std::string& page_to_change(std::int64_t page) {
        const auto found = pages_.find(page);
        return found != pages_.end() ? found->second : pages_.emplace(page, base_page(page)).first->second;
    }

    std::shared_ptr<const std::string> base_;
    std::int64_t base_size_ = 0;  ///< How much of the shared text still counts.
    std::int64_t size_ = 0;
    std::map<std::int64_t, std::string> pages_;
};

}  // namespace kalco::test
