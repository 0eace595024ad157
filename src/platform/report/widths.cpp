// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/widths.h"

#include <algorithm>
#include <map>

namespace report {

namespace {

constexpr double measuredPoints = 50;
constexpr float notSimple = -2;
constexpr std::size_t mostWords = 100'000; // some megabytes

struct Range {
    char16_t first;
    char16_t last;
};
constexpr Range simpleRanges[] = {{0x0020, 0x007E}, {0x00A0, 0x00AC}, {0x00AE, 0x02FF}, // Latin
    {0x0370, 0x0482}, {0x048A, 0x052F}, // Greek, Cyrillic
    {0x1E00, 0x1FFF}, {0x2010, 0x2027}, {0x2030, 0x205E}, {0x20A0, 0x20BF}, {0x2100, 0x214F}, {0x3000, 0x3029},
    {0x3030, 0x3096}, {0x309B, 0x9FFF}, // East Asian
    {0xAC00, 0xD7A3}, {0xFF01, 0xFF60}};

bool isSimple(char16_t character)
{
    return std::any_of(std::begin(simpleRanges), std::end(simpleRanges),
        [character](Range range) { return range.first <= character && character <= range.last; });
}

} // namespace

CharacterWidths::CharacterWidths(bool bold)
    : metrics_(fontOf({measuredPoints, bold}))
{
    widths_.fill(unknown);
}

const CharacterWidths& CharacterWidths::of(bool bold)
{
    static const CharacterWidths plain(false);
    static const CharacterWidths heavy(true);
    return bold ? heavy : plain;
}

bool CharacterWidths::areSimple(QStringView text) const
{
    return std::all_of(text.begin(), text.end(), [this](QChar character) { return (*this)[character] >= 0; });
}

double CharacterWidths::sum(QStringView text) const
{
    double sum = 0;
    for (const QChar character : text)
        sum += double((*this)[character]);
    return sum;
}

float CharacterWidths::measured(QChar character) const
{
    if (!isSimple(character.unicode()))
        return notSimple;
    return float(metrics_.horizontalAdvance(character) / (measuredPoints * TwipsPerPoint));
}

WordWidths& WordWidths::of(Type type)
{
    static std::map<std::pair<double, bool>, WordWidths> instances;
    return instances.try_emplace({type.points, type.bold}, type).first->second;
}

double WordWidths::operator[](QStringView word)
{
    const std::u16string_view key(word.utf16(), static_cast<std::size_t>(word.size()));
    if (const auto found = known_.find(key); found != known_.end())
        return found->second;
    if (known_.size() == mostWords)
        known_.clear();
    return known_.emplace(key, widthOf(word.toString(), type_)).first->second;
}

} // namespace report
