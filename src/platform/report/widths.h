// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/typeface.h"

#include <QFontMetricsF>

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace report {

/// Kerning can make a line wider than its characters are together, but by less than this.
inline constexpr double kerningSlack = 0.99;

/// The widths of a weight's characters in parts of the type's size, measured when they are first met. Characters that
/// stand one by one beside each other are simple: of these the width of a text is the sum.
class CharacterWidths {
public:
    static const CharacterWidths& of(bool bold);

    /// Negative where the character isn't simple.
    float operator[](QChar character) const
    {
        float& width = widths_[character.unicode()];
        if (width == unknown)
            width = measured(character);
        return width;
    }

    /// The same, and negative too where the character hasn't been met yet. Asked some millions of times for a long
    /// report.
    float known(QChar character) const { return widths_[character.unicode()]; }

    bool areSimple(QStringView text) const;
    double sum(QStringView text) const;

private:
    static constexpr float unknown = -1;

    explicit CharacterWidths(bool bold);
    float measured(QChar character) const;

    QFontMetricsF metrics_;
    mutable std::array<float, 0x10000> widths_;
};

/// The widths of a type's words, in twips, each measured by the toolkit when it is first met: what joins or stacks its
/// characters does so within a word.
class WordWidths {
public:
    static WordWidths& of(Type type);

    explicit WordWidths(Type type)
        : type_(type)
    {
    }

    double operator[](QStringView word);

private:
    struct Hash : std::hash<std::u16string_view> {
        using is_transparent = void;
    };

    Type type_;
    std::unordered_map<std::u16string, double, Hash, std::equal_to<>> known_;
};

} // namespace report
