// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <deque>
#include <memory_resource>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace storage {

/// The number of a text in its pool.
using TextId = quint32;

/// The texts of the cells, each once, so that a cell is a number of 32 bits. They are kept as the file's UTF-8, and
/// made texts of Qt's when they are first looked at. A text stays until `clear`: those of a household are few, and a
/// table that is filled anew finds those of the last time.
class TextPool {
public:
    /// The empty text, in every pool.
    static constexpr TextId empty = 0;

    TextPool() { clear(); }

    /// Gives the number of a text; the same for the same text.
    TextId intern(std::string_view utf8);
    TextId intern(const QString& text);
    TextId intern(qint64 number);

    /// The text; it stays where it is until `clear`.
    const QString& text(TextId id) const;

    /// The same as UTF-8; it stays where it is until `clear`.
    std::string_view utf8(TextId id) const { return texts_[id].utf8; }

    /// The same in upper case, by the rule of `values::upper`. It is made at the first question.
    std::string_view upper(TextId id) { return id < upper_.size() && upper_[id].data() ? upper_[id] : fold(id); }

    void clear();

private:
    struct Text {
        std::string utf8;
        mutable QString text = {}; // once it has been looked at
    };

    std::string_view fold(TextId id);
    std::string_view folded(std::string_view utf8);
    char* room(std::size_t bytes);

    std::deque<Text> texts_; // by number
    // The same in upper case, once they have been asked for, close together: a search looks at all of them.
    std::vector<std::string_view> upper_;
    std::pmr::monotonic_buffer_resource upperBytes_;
    std::unordered_map<std::string_view, TextId> numbers_;
};

} // namespace storage
