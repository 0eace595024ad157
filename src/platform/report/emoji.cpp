// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/emoji.h"

#include <QChar>

#include <algorithm>

namespace report {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// Presented as an emoji by themselves (the property Emoji_Presentation). What isn't assigned yet in the newer blocks is
// taken for one.
constexpr Range byThemselves[] = {{0x231A, 0x231B}, {0x23E9, 0x23EC}, {0x23F0, 0x23F0}, {0x23F3, 0x23F3},
    {0x25FD, 0x25FE}, {0x2614, 0x2615}, {0x2648, 0x2653}, {0x267F, 0x267F}, {0x2693, 0x2693}, {0x26A1, 0x26A1},
    {0x26AA, 0x26AB}, {0x26BD, 0x26BE}, {0x26C4, 0x26C5}, {0x26CE, 0x26CE}, {0x26D4, 0x26D4}, {0x26EA, 0x26EA},
    {0x26F2, 0x26F3}, {0x26F5, 0x26F5}, {0x26FA, 0x26FA}, {0x26FD, 0x26FD}, {0x2705, 0x2705}, {0x270A, 0x270B},
    {0x2728, 0x2728}, {0x274C, 0x274C}, {0x274E, 0x274E}, {0x2753, 0x2755}, {0x2757, 0x2757}, {0x2795, 0x2797},
    {0x27B0, 0x27B0}, {0x27BF, 0x27BF}, {0x2B1B, 0x2B1C}, {0x2B50, 0x2B50}, {0x2B55, 0x2B55}, {0x1F004, 0x1F004},
    {0x1F0CF, 0x1F0CF}, {0x1F18E, 0x1F18E}, {0x1F191, 0x1F19A}, {0x1F1E6, 0x1F1FF}, {0x1F201, 0x1F201},
    {0x1F21A, 0x1F21A}, {0x1F22F, 0x1F22F}, {0x1F232, 0x1F236}, {0x1F238, 0x1F23A}, {0x1F250, 0x1F251},
    {0x1F300, 0x1F320}, {0x1F32D, 0x1F335}, {0x1F337, 0x1F37C}, {0x1F37E, 0x1F393}, {0x1F3A0, 0x1F3CA},
    {0x1F3CF, 0x1F3D3}, {0x1F3E0, 0x1F3F0}, {0x1F3F4, 0x1F3F4}, {0x1F3F8, 0x1F43E}, {0x1F440, 0x1F440},
    {0x1F442, 0x1F4FC}, {0x1F4FF, 0x1F53D}, {0x1F54B, 0x1F54E}, {0x1F550, 0x1F567}, {0x1F57A, 0x1F57A},
    {0x1F595, 0x1F596}, {0x1F5A4, 0x1F5A4}, {0x1F5FB, 0x1F64F}, {0x1F680, 0x1F6C5}, {0x1F6CC, 0x1F6CC},
    {0x1F6D0, 0x1F6D2}, {0x1F6D5, 0x1F6DF}, {0x1F6EB, 0x1F6EC}, {0x1F6F4, 0x1F6FC}, {0x1F7E0, 0x1F7EB},
    {0x1F7F0, 0x1F7F0}, {0x1F90C, 0x1F93A}, {0x1F93C, 0x1F945}, {0x1F947, 0x1F9FF}, {0x1FA70, 0x1FAFF}};

constexpr char32_t asText = 0xFE0E;
constexpr char32_t asPicture = 0xFE0F;
constexpr char32_t joiner = 0x200D;
constexpr char32_t keyCap = 0x20E3;
constexpr char32_t firstSymbol = 0x203C;

bool isIn(Range range, char32_t character)
{
    return range.first <= character && character <= range.last;
}

bool isByItself(char32_t character)
{
    const auto* const found = std::lower_bound(std::begin(byThemselves), std::end(byThemselves), character,
        [](Range range, char32_t sought) { return range.last < sought; });
    return found != std::end(byThemselves) && isIn(*found, character);
}

bool isSkinTone(char32_t character)
{
    return isIn({0x1F3FB, 0x1F3FF}, character);
}

bool isFlagLetter(char32_t character)
{
    return isIn({0x1F1E6, 0x1F1FF}, character);
}

bool isTag(char32_t character)
{
    return isIn({0xE0020, 0xE007F}, character);
}

bool isOnKey(char32_t character)
{
    return isIn({U'0', U'9'}, character) || character == U'#' || character == U'*';
}

bool mayBePicture(char32_t character)
{
    return character >= firstSymbol || character == 0xA9 || character == 0xAE;
}

/// Reads a text by its code points; beyond the end there are zeros.
class Reader {
public:
    explicit Reader(QStringView text)
        : text_(text)
    {
    }

    qsizetype at() const { return at_; }
    bool isAtEnd() const { return at_ >= text_.size(); }

    char32_t next() const { return read(at_); }
    char32_t afterNext() const { return read(at_ + lengthOf(next())); }

    void skip() { at_ += lengthOf(next()); }

    template <class Condition>
    void skipIf(Condition condition)
    {
        if (condition(next()))
            skip();
    }

private:
    static qsizetype lengthOf(char32_t character) { return QChar::requiresSurrogates(character) ? 2 : 1; }

    char32_t read(qsizetype at) const
    {
        if (at >= text_.size())
            return 0;
        const QChar unit = text_[at];
        const bool isPair = unit.isHighSurrogate() && at + 1 < text_.size() && text_[at + 1].isLowSurrogate();
        return isPair ? QChar::surrogateToUcs4(unit, text_[at + 1]) : unit.unicode();
    }

    QStringView text_;
    qsizetype at_ = 0;
};

// ---- the sequences of Unicode's report on emoji

bool skipsKeyCap(Reader& reader)
{
    Reader ahead = reader;
    ahead.skip();
    ahead.skipIf([](char32_t character) { return character == asPicture; });
    if (ahead.next() != keyCap)
        return false;
    ahead.skip();
    reader = ahead;
    return true;
}

// A character with what changes its looks.
void skipElement(Reader& reader)
{
    const bool isFlag = isFlagLetter(reader.next()) && isFlagLetter(reader.afterNext());
    reader.skip();
    if (isFlag)
        reader.skip();
    reader.skipIf([](char32_t character) { return character == asPicture; });
    reader.skipIf(isSkinTone);
    while (isTag(reader.next()))
        reader.skip();
}

bool isJoined(const Reader& reader)
{
    return reader.next() == joiner && mayBePicture(reader.afterNext()) && reader.afterNext() != joiner;
}

bool beginsEmoji(const Reader& reader)
{
    const char32_t after = reader.afterNext();
    if (!mayBePicture(reader.next()) || after == asText)
        return false;
    if (isByItself(reader.next()) || after == asPicture || isSkinTone(after))
        return true;
    Reader behind = reader;
    behind.skip();
    return isJoined(behind) && isByItself(behind.afterNext());
}

bool skipsEmoji(Reader& reader)
{
    if (isOnKey(reader.next()))
        return skipsKeyCap(reader);
    if (!beginsEmoji(reader))
        return false;
    skipElement(reader);
    while (isJoined(reader)) {
        reader.skip();
        skipElement(reader);
    }
    return true;
}

} // namespace

std::vector<Span> emojiIn(QStringView text)
{
    std::vector<Span> found;
    for (Reader reader(text); !reader.isAtEnd();) {
        const qsizetype start = reader.at();
        if (skipsEmoji(reader))
            found.push_back({start, reader.at() - start});
        else
            reader.skip();
    }
    return found;
}

bool hasEmoji(QStringView text)
{
    const auto mayBelong = [](QChar unit) { return unit.unicode() >= firstSymbol; };
    return std::any_of(text.begin(), text.end(), mayBelong) && !emojiIn(text).empty();
}

} // namespace report
