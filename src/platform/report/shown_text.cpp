// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/shown_text.h"

#include "platform/report/emoji.h"

namespace report {

namespace {

constexpr char16_t pictureSelector = 0xFE0F;

QTextCharFormat pictureFormat()
{
    QTextCharFormat format;
    format.setFontFamilies(QStringList{QStringLiteral("Noto Color Emoji"), QStringLiteral("emoji")});
    return format;
}

} // namespace

ShownText::ShownText(QStringView text)
{
    qsizetype done = 0;
    for (const Span& emoji : emojiIn(text)) {
        add(text.mid(done, emoji.start - done));
        addEmoji(text.mid(emoji.start, emoji.length));
        done = emoji.start + emoji.length;
    }
    add(text.mid(done));
}

void ShownText::addEmoji(QStringView sequence)
{
    static const QTextCharFormat format = pictureFormat();
    const auto start = static_cast<int>(text_.size());
    for (const QChar unit : sequence) {
        if (unit == pictureSelector)
            leftOut_.push_back(text_.size() + static_cast<qsizetype>(leftOut_.size()));
        else
            text_ += unit;
    }
    formats_.append({start, static_cast<int>(text_.size()) - start, format});
}

void ShownText::layOutIn(QTextLayout& layout) const
{
    layout.setText(text_);
    layout.setFormats(formats_);
}

qsizetype ShownText::inSource(qsizetype place) const
{
    for (const qsizetype leftOut : leftOut_)
        if (leftOut <= place)
            ++place;
    return place;
}

} // namespace report
