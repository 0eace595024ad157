// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

namespace storage {

/// Memory that grows and never moves, for what a table brings in by the hundred thousand. It comes in blocks, large
/// ones as soon as there is more than a little, which the system can back by large pages: touching new memory page by
/// page is what opening a large table would wait for.
class Arena {
public:
    Arena() = default;

    /// So many bytes, aligned to `alignment`, until the arena goes.
    std::byte* take(std::size_t bytes, std::size_t alignment);

private:
    struct Free {
        void operator()(std::byte* block) const;
    };

    void addBlock(std::size_t atLeast);

    std::vector<std::unique_ptr<std::byte, Free>> blocks_;
    std::span<std::byte> room_; // what is free of the last block
};

} // namespace storage
