// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/arena.h"

#include <QString>
#include <QStringEncoder>

#include <array>
#include <memory>
#include <string_view>
#include <vector>

namespace storage {

/// The number of a text in its pool.
using TextId = quint32;

/// The texts of the cells, so that a cell is a number of 32 bits. They are kept as the file's UTF-8, and made texts of
/// Qt's when they are first looked at. A text stays until `clear`: those of a household are few, and a table that is
/// filled anew finds those of the last time.
class TextPool {
public:
    /// The empty text, in every pool.
    static constexpr TextId empty = 0;

    TextPool();

    /// Takes in a text of the file, in next to no time: one seen lately keeps its number, another may get a second one.
    TextId load(std::string_view utf8);

    /// Gives the number of a text; the same for the same text.
    TextId intern(const QString& text);
    TextId intern(qint64 number);

    /// The text; it stays where it is until `clear`.
    const QString& text(TextId id) const;

    /// The same as UTF-8; it stays where it is until `clear`.
    std::string_view utf8(TextId id) const { return spans_[id / blockSize][id % blockSize]; }

    /// The number of the same text in upper case, by the rule of `values::upper`. It is made at the first question.
    TextId upper(TextId id);

    void clear();

private:
    static constexpr std::size_t blockSize = 512;
    static constexpr int recentBits = 11;
    static constexpr TextId unknown = ~TextId{0};
    using Block = std::array<QString, blockSize>;
    struct Slot {
        TextId id = empty; // the empty text marks a free slot
        quint32 hash = 0;
    };

    TextId intern(std::string_view utf8);
    TextId add(std::string_view utf8);
    TextId fold(TextId id);
    std::string_view encode(const QString& text);
    std::size_t slotFor(std::string_view utf8, quint32 hash) const;
    void indexNewTexts();
    void growIndex();

    Arena memory_;
    std::vector<std::string_view*> spans_; // in blocks; where each text lies
    std::size_t count_ = 0;
    mutable std::vector<std::unique_ptr<Block>> blocks_; // of the texts that have been looked at
    std::array<Slot, 1 << recentBits> recent_; // by the upper bits of `quickHash`
    std::vector<Slot> index_; // by `hashOf`: open addressing, a power of two, at most half full
    TextId indexed_ = empty; // the last text in the index
    std::vector<TextId> upper_; // by the text's number, up to the last that was asked for
    QStringEncoder encoder_;
    std::vector<char> encoded_;
};

} // namespace storage
