// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <concepts>
#include <utility>

namespace values {

/// Any whole number of C++. A truth value is none: its bits are told by `bitsOf`.
template <typename T>
concept WholeNumber = std::integral<T> && !std::same_as<T, bool>;

/// A whole number of 16 bits, -32768 to 32767. A result or an operand beyond is a failure (Overflow), never a wrapped
/// number. It reads as an `int` wherever one is wanted, so it compares, indexes and switches like one.
class Integer {
public:
    constexpr Integer() = default;

    /// Failure: Overflow, where `value` doesn't fit.
    template <WholeNumber T>
    constexpr Integer(T value)
        : value_(std::in_range<qint16>(value) ? static_cast<qint16>(value) : overflow())
    {
    }

    /// Reads a text as `wholeNumber` does. Failures: TypeMismatch, Overflow.
    static Integer fromText(const QString& text);

    constexpr operator int() const { return value_; }

    constexpr Integer& operator+=(Integer other) { return *this = value_ + other.value_; }
    constexpr Integer& operator-=(Integer other) { return *this = value_ - other.value_; }
    constexpr Integer& operator++() { return *this += 1; }
    constexpr Integer& operator--() { return *this -= 1; }

private:
    [[noreturn]] static qint16 overflow();

    qint16 value_ = 0;
};

/// Two `Integer`s, or one and a whole number of C++.
template <typename L, typename R>
concept IntegerOperands = (std::same_as<L, Integer> && (std::same_as<R, Integer> || WholeNumber<R>))
    || (WholeNumber<L> && std::same_as<R, Integer>);

template <typename L, typename R>
requires IntegerOperands<L, R>
constexpr Integer operator+(L a, R b)
{
    return int(Integer(a)) + int(Integer(b));
}

template <typename L, typename R>
requires IntegerOperands<L, R>
constexpr Integer operator-(L a, R b)
{
    return int(Integer(a)) - int(Integer(b));
}

template <typename L, typename R>
requires IntegerOperands<L, R>
constexpr Integer operator*(L a, R b)
{
    return int(Integer(a)) * int(Integer(b));
}

/// Reads "12", "-12", "+12", "007", " 12 ", "1,200" or "3.5" as a whole number of 32 bits; commas may stand as in an
/// amount, and halves go to the even neighbour, so "2.5" is 2 and "3.5" is 4. Failures: TypeMismatch for any other text
/// (empty, two signs, an exponent, a currency sign), Overflow.
qint32 wholeNumber(const QString& text);

/// The bits of a truth value where they are combined with a number's: all set (-1) for true, none (0) for false.
constexpr int bitsOf(bool truth)
{
    return truth ? -1 : 0;
}

} // namespace values
