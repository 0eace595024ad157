// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/values/currency.h"

#include <QStringList>

#include <optional>

namespace importing {

/// The sign in front of the cents.
enum class DecimalSign { Unknown, Point, Comma };

/// "point" or "comma"; nothing for another word.
std::optional<DecimalSign> decimalSignNamed(const QString& word);

/// Whether a text is an amount, whatever its decimal sign and its size.
bool isAmount(const QString& text);

/// The currencies that stand with amounts, each once, by its sign where it has one; no more than some.
QStringList currenciesIn(const QStringList& amounts);

/// An amount that was read, or why it can't be.
struct AmountRead {
    std::optional<values::Currency> amount;
    QString fault;
};

/// Reads the amounts of a column: with or without a currency's sign or its name, with blanks, apostrophes, points or
/// commas between the thousands. None is below zero, and none has parts of a cent.
class AmountReader {
public:
    /// Finds out which sign stands before the cents: the one that most of the amounts have there that tell.
    explicit AmountReader(const QStringList& column);
    explicit AmountReader(DecimalSign sign)
        : sign_(sign)
    {
    }

    DecimalSign sign() const { return sign_; }

    /// Whether nothing but the user can tell the sign.
    bool isAmbiguous() const { return isAmbiguous_; }

    AmountRead read(const QString& text) const;

private:
    DecimalSign sign_ = DecimalSign::Unknown;
    bool isAmbiguous_ = false;
};

} // namespace importing
