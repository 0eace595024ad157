// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/text_pool.h"

#include "platform/values/text.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>
#include <functional>

namespace storage {

namespace {

quint32 hashOf(std::string_view utf8)
{
    return static_cast<quint32>(std::hash<std::string_view>()(utf8));
}

constexpr bool isAscii(char byte)
{
    return (byte & 0x80) == 0;
}

constexpr char upperAscii(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

quint64 wordAt(const char* bytes, std::size_t count)
{
    quint64 word = 0;
    std::memcpy(&word, bytes, count);
    return word;
}

// From the length and both ends of a text, where texts differ most.
quint32 quickHash(std::string_view utf8)
{
    const std::size_t count = std::min(utf8.size(), sizeof(quint64));
    const quint64 head = wordAt(utf8.data(), count);
    const quint64 tail = wordAt(utf8.data() + utf8.size() - count, count);
    return static_cast<quint32>(((head * 31 + tail + utf8.size()) * 0x9e3779b97f4a7c15) >> 32);
}

} // namespace

TextPool::TextPool()
    : encoder_(QStringEncoder::Utf8)
{
    clear();
}

void TextPool::clear()
{
    spans_.clear();
    memory_ = Arena();
    count_ = 0;
    add({});
    blocks_.clear();
    recent_.fill({});
    index_ = std::vector<Slot>();
    indexed_ = empty;
    upper_ = std::vector<TextId>();
}

const QString& TextPool::text(TextId id) const
{
    const std::size_t block = id / blockSize;
    if (block >= blocks_.size())
        blocks_.resize(block + 1);
    if (!blocks_[block])
        blocks_[block] = std::make_unique<Block>();
    QString& text = (*blocks_[block])[id % blockSize];
    if (text.isNull() && id != empty) {
        const std::string_view bytes = utf8(id);
        text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }
    return text;
}

TextId TextPool::load(std::string_view utf8)
{
    if (utf8.empty())
        return empty;
    const quint32 hash = quickHash(utf8);
    Slot& recent = recent_[hash >> (32 - recentBits)];
    if (recent.hash != hash || this->utf8(recent.id) != utf8)
        recent = {add(utf8), hash};
    return recent.id;
}

TextId TextPool::add(std::string_view utf8)
{
    if (count_ % blockSize == 0) {
        std::byte* block = memory_.take(blockSize * sizeof(std::string_view), alignof(std::string_view));
        spans_.push_back(reinterpret_cast<std::string_view*>(block));
    }
    char* bytes = reinterpret_cast<char*>(memory_.take(utf8.size(), 1));
    std::ranges::copy(utf8, bytes);
    new (spans_.back() + count_ % blockSize) std::string_view(bytes, utf8.size());
    return static_cast<TextId>(count_++);
}

TextId TextPool::intern(const QString& text)
{
    return intern(encode(text));
}

std::string_view TextPool::encode(const QString& text)
{
    encoded_.resize(static_cast<std::size_t>(encoder_.requiredSpace(text.size())));
    encoder_.resetState();
    const char* end = encoder_.appendToBuffer(encoded_.data(), text);
    return {encoded_.data(), static_cast<std::size_t>(end - encoded_.data())};
}

TextId TextPool::intern(qint64 number)
{
    char digits[20];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return intern(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

TextId TextPool::intern(std::string_view utf8)
{
    if (utf8.empty())
        return empty;
    indexNewTexts();
    const TextId known = index_[slotFor(utf8, hashOf(utf8))].id;
    return known != empty ? known : add(utf8);
}

// Upper case

TextId TextPool::upper(TextId id)
{
    if (id >= upper_.size())
        upper_.resize(count_, unknown);
    if (upper_[id] == unknown)
        upper_[id] = fold(id);
    return upper_[id];
}

TextId TextPool::fold(TextId id)
{
    const std::string_view text = utf8(id);
    if (!std::ranges::all_of(text, isAscii))
        return load(encode(values::upper(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())))));
    encoded_.resize(text.size());
    std::ranges::transform(text, encoded_.begin(), upperAscii);
    const std::string_view upper(encoded_.data(), text.size());
    return upper == text ? id : load(upper);
}

// The slot of a text, or the free one where it belongs.
std::size_t TextPool::slotFor(std::string_view utf8, quint32 hash) const
{
    const std::size_t mask = index_.size() - 1;
    std::size_t slot = hash & mask;
    while (index_[slot].id != empty && (index_[slot].hash != hash || this->utf8(index_[slot].id) != utf8))
        slot = (slot + 1) & mask;
    return slot;
}

// What was loaded goes into the index when a text is first put, so that opening doesn't pay for it.
void TextPool::indexNewTexts()
{
    if (count_ * 2 >= index_.size())
        growIndex();
    while (indexed_ + 1 < count_) {
        ++indexed_;
        const quint32 hash = hashOf(utf8(indexed_));
        Slot& slot = index_[slotFor(utf8(indexed_), hash)];
        if (slot.id == empty)
            slot = {indexed_, hash};
    }
}

void TextPool::growIndex()
{
    index_ = std::vector<Slot>(std::bit_ceil(count_ * 4));
    indexed_ = empty;
}

} // namespace storage
