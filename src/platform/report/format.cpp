// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/format.h"

#include "platform/values/currency.h"

namespace report {

namespace {

// An amount below zero bears a minus sign here, in place of the parentheses of the screens.
QString withMinus(const QString& amount)
{
    return amount.startsWith(u'(') ? u'-' + amount.mid(1, amount.size() - 2) : amount;
}

} // namespace

QString formatted(const QString& value, Format format)
{
    if (format == Format::Text)
        return QString(value).replace(u'\t', u' '); // a tab is as wide as the device pleases
    const auto amount = values::Currency::tryParse(value);
    return amount ? withMinus(amount->toText()) : value;
}

QString plain(const QString& value, Format format)
{
    if (format == Format::Text || !values::Currency::tryParse(value))
        return value;
    return formatted(value, format).remove(u'$').remove(u',');
}

} // namespace report
