// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/text_pool.h"

#include "platform/values/text.h"

#include <algorithm>

namespace storage {

namespace {

QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

TextId TextPool::intern(std::string_view utf8)
{
    if (const auto known = numbers_.find(utf8); known != numbers_.end())
        return known->second;
    const auto id = static_cast<TextId>(texts_.size());
    texts_.push_back({std::string(utf8)});
    numbers_.emplace(texts_.back().utf8, id);
    return id;
}

TextId TextPool::intern(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return intern(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

TextId TextPool::intern(qint64 number)
{
    return intern(std::string_view(std::to_string(number)));
}

const QString& TextPool::text(TextId id) const
{
    const Text& text = texts_[id];
    if (text.text.isNull() && id != empty)
        text.text = textOf(text.utf8);
    return text.text;
}

std::string_view TextPool::fold(TextId id)
{
    if (id >= upper_.size())
        upper_.resize(texts_.size());
    upper_[id] = folded(texts_[id].utf8);
    return upper_[id];
}

std::string_view TextPool::folded(std::string_view utf8)
{
    char* const bytes = room(utf8.size());
    if (values::upperAscii(utf8, bytes))
        return {bytes, utf8.size()};
    const QByteArray upper = values::upper(textOf(utf8)).toUtf8();
    char* const place = room(static_cast<std::size_t>(upper.size()));
    std::ranges::copy(upper, place);
    return {place, static_cast<std::size_t>(upper.size())};
}

// One byte more, so that there is a place for the empty text, too.
char* TextPool::room(std::size_t bytes)
{
    return static_cast<char*>(upperBytes_.allocate(bytes + 1, 1));
}

void TextPool::clear()
{
    numbers_.clear();
    texts_.clear();
    upper_.clear();
    upperBytes_.release();
    intern(std::string_view());
}

} // namespace storage
