// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/values/collation.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <array>
#include <optional>

namespace values {

namespace {

// English has no order of its own, so this is the one that Unicode gives to all languages. The locale "C" would compare
// codes, and the desktop's would put an accented letter wherever its alphabet has it. The toolkit has to be built with
// ICU for this, as Debian's is; without, it asks the C library, which knows only the locales that are installed.
const QCollator& collator()
{
    static const QCollator instance(QLocale(QLocale::English, QLocale::UnitedStates));
    return instance;
}

constexpr bool isPrintableAscii(QChar c)
{
    return c >= u' ' && c <= u'~';
}

// No accent, which would be a character of its own, begins there.
bool isPlainFrom(const QString& text, qsizetype at)
{
    return at >= text.size() || isPrintableAscii(text[at]);
}

using AsciiPlaces = std::array<int, 128>;

// By code: where the collator has each printable character among the others. The two cases of a letter share a place.
AsciiPlaces placesOfAscii()
{
    QCollator ignoringCase = collator();
    ignoringCase.setCaseSensitivity(Qt::CaseInsensitive);
    const auto before = [&](QChar one, QChar other) { return ignoringCase.compare(QString(one), QString(other)) < 0; };
    QString characters;
    for (char c = ' '; c <= '~'; ++c)
        characters += QLatin1Char(c);
    std::sort(characters.begin(), characters.end(), before);
    AsciiPlaces places{};
    for (qsizetype i = 1; i < characters.size(); ++i) {
        const bool isFurther = before(characters[i - 1], characters[i]);
        places[characters[i].unicode()] = places[characters[i - 1].unicode()] + (isFurther ? 1 : 0);
    }
    return places;
}

// What the collator says, in a fraction of its time; nothing where it has to be asked itself.
std::optional<int> compareAscii(const QString& a, const QString& b)
{
    static const AsciiPlaces places = placesOfAscii();
    const qsizetype common = std::min(a.size(), b.size());
    int byCase = 0;
    for (qsizetype at = 0; at < common; ++at) {
        if (!isPrintableAscii(a[at]) || !isPrintableAscii(b[at]))
            return std::nullopt;
        const ushort left = a[at].unicode();
        const ushort right = b[at].unicode();
        if (places[left] != places[right])
            return isPlainFrom(a, at + 1) && isPlainFrom(b, at + 1) ? std::optional(places[left] - places[right])
                                                                    : std::nullopt;
        if (byCase == 0)
            byCase = right - left; // small letters have the greater codes
    }
    if (!isPlainFrom(a, common) || !isPlainFrom(b, common))
        return std::nullopt;
    return a.size() == b.size() ? byCase : static_cast<int>(a.size() - b.size());
}

} // namespace

int compareNames(const QString& a, const QString& b)
{
    const std::optional<int> order = compareAscii(a, b);
    return order ? *order : collator().compare(a, b);
}

} // namespace values
