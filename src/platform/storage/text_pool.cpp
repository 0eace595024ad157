// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/text_pool.h"

#include "platform/values/text.h"

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

std::string_view TextPool::upper(TextId id)
{
    Text& text = texts_[id];
    if (!text.upper)
        text.upper = std::make_unique<const std::string>(values::upperUtf8(text.utf8));
    return *text.upper;
}

void TextPool::clear()
{
    numbers_.clear();
    texts_.clear();
    intern(std::string_view());
}

} // namespace storage
