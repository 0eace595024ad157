// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <compare>
#include <optional>

namespace values {

/// An amount of money, exact to a ten-thousandth of a dollar, in 64 bits: -$922,337,203,685,477.5808 to
/// $922,337,203,685,477.5807. What would go beyond is a failure (Overflow). A new one is zero.
class Currency {
public:
    constexpr Currency() = default;

    static constexpr Currency fromTenThousandths(qint64 count) { return Currency(count); }
    constexpr qint64 tenThousandths() const { return count_; }

    /// Reads "1234.5", "$1,234.50", "$.50", "$5." and, below zero, "-$1.00", "$-1" and "($1.00)". A comma may stand
    /// between any two digits in front of the point, where an edit has left it: "$1250,000.00", "$50,00.00". A text
    /// that isn't exactly of this form is refused, never rounded or guessed at: an empty one, blanks, two signs, a
    /// comma elsewhere, more than four decimals. Failures: TypeMismatch; Overflow, where the amount doesn't fit.
    static Currency parse(const QString& text);

    /// The same without a failure: nothing where `parse` fails.
    static std::optional<Currency> tryParse(const QString& text);

    /// "$1,234.50", and "($1,234.50)" below zero, whatever the machine's locale. Rounded to two decimals, halves away
    /// from zero; what rounds to zero is "$0.00".
    QString toText() const;

    /// The amount as `toText` prints it, to two decimals.
    Currency rounded() const;

    Currency operator-() const;
    Currency& operator+=(Currency other);
    Currency& operator-=(Currency other);
    friend Currency operator+(Currency a, Currency b) { return a += b; }
    friend Currency operator-(Currency a, Currency b) { return a -= b; }
    friend constexpr auto operator<=>(Currency, Currency) = default;

private:
    explicit constexpr Currency(qint64 count)
        : count_(count)
    {
    }

    qint64 count_ = 0;
};

/// An amount that has commas, with one at each thousand: "$1250,000.00" becomes "$1,250,000.00". Any other text as it
/// stands.
QString groupedByThrees(const QString& text);

/// A text as screens show an amount: as `toText` prints it where it reads as one, as it stands where it doesn't.
QString currencyFormat(const QString& text);

} // namespace values
