// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/arena.h"

#include <cstdint>
#include <cstdlib>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

namespace storage {

namespace {

constexpr std::size_t smallBlock = std::size_t{1} << 16;
constexpr std::size_t largeBlock = std::size_t{1} << 21; // a large page of the common processors
constexpr std::size_t smallBlocks = 4;

void askForLargePages([[maybe_unused]] std::byte* block, [[maybe_unused]] std::size_t size)
{
#ifdef MADV_HUGEPAGE
    madvise(block, size, MADV_HUGEPAGE); // refused or not, the memory is there
#endif
}

} // namespace

void Arena::Free::operator()(std::byte* block) const
{
    std::free(block);
}

std::byte* Arena::take(std::size_t bytes, std::size_t alignment)
{
    const std::size_t gap = (0 - reinterpret_cast<std::uintptr_t>(room_.data())) % alignment;
    if (gap + bytes > room_.size()) {
        addBlock(bytes);
        return take(bytes, alignment);
    }
    std::byte* taken = room_.data() + gap;
    room_ = room_.subspan(gap + bytes);
    return taken;
}

void Arena::addBlock(std::size_t atLeast)
{
    const bool large = blocks_.size() >= smallBlocks || atLeast > smallBlock;
    const std::size_t unit = large ? largeBlock : smallBlock;
    const std::size_t size = (atLeast + unit - 1) / unit * unit;
    auto* block = static_cast<std::byte*>(std::aligned_alloc(large ? largeBlock : alignof(std::max_align_t), size));
    if (!block)
        throw std::bad_alloc();
    blocks_.emplace_back(block);
    room_ = {block, size};
    if (large)
        askForLargePages(block, size);
}

} // namespace storage
