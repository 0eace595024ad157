// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/table_view.h"
#include "platform/values/failure.h"

#include <charconv>

using values::Currency;
using values::FailureKind;
using values::RuntimeFailure;

namespace storage {

namespace {

[[noreturn]] void refuse(const QString& value, const Column& column)
{
    throw RuntimeFailure(FailureKind::TypeMismatch,
        QStringLiteral("\"%1\" in column \"%2\"").arg(value, QString::fromUtf8(column.name)));
}

qint64 numberIn(const QString& value, const Column& column)
{
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    if (!isNumber)
        refuse(value, column);
    return number;
}

Currency amountIn(const QString& value, const Column& column)
{
    const std::optional<Currency> amount = Currency::tryParse(value);
    if (!amount)
        refuse(value, column);
    return *amount;
}

bool isNumber(ColumnType type)
{
    return type == ColumnType::Identity || type == ColumnType::Integer;
}

// Whether a cell of one column may go into the other as it is.
bool sameCells(ColumnType from, ColumnType to)
{
    switch (to) {
    case ColumnType::Text:
        return from != ColumnType::Currency;
    case ColumnType::Integer:
        return isNumber(from);
    default:
        return from == to && to != ColumnType::Identity;
    }
}

} // namespace

// The cell that a value makes in a column.
TextId TableView::cellFor(const Column& column, const QString& value) const
{
    switch (column.type) {
    case ColumnType::Text:
        break;
    case ColumnType::Money:
        amountIn(value, column);
        return texts().intern(values::groupedByThrees(value));
    case ColumnType::Integer:
        return texts().intern(numberIn(value, column));
    case ColumnType::Currency:
        return texts().intern(amountIn(value, column).tenThousandths());
    case ColumnType::Identity:
        throw RuntimeFailure(
            FailureKind::InvalidCall, QStringLiteral("the database gives \"%1\"").arg(QString::fromUtf8(column.name)));
    }
    return texts().intern(value);
}

// An amount as it is shown.
TextId Field::amountId() const
{
    return view_.texts().intern(currency().toText());
}

const QString& Field::text() const
{
    return view_.texts().text(textId());
}

bool Field::contains(const FoldedText& text) const
{
    if (text.isEmpty())
        return textId() != TextPool::empty;
    return upper().find(text.upper()) != std::string_view::npos;
}

qint64 Field::storedInteger() const
{
    const std::string_view digits = view_.texts().utf8(view_.cell(ordinal_));
    qint64 number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size())
        refuse(text(), view_.column(ordinal_));
    return number;
}

Currency Field::currency() const
{
    const Column& column = view_.column(ordinal_);
    if (column.type == ColumnType::Currency)
        return Currency::fromTenThousandths(integer());
    return amountIn(view_.texts().text(view_.cell(ordinal_)), column);
}

Field& Field::operator=(const QString& text)
{
    view_.put(ordinal_, view_.cellFor(view_.column(ordinal_), text));
    return *this;
}

Field& Field::operator=(Currency amount)
{
    if (view_.column(ordinal_).type != ColumnType::Currency)
        return *this = amount.toText();
    // By its count, for the text is rounded.
    view_.put(ordinal_, view_.texts().intern(amount.tenThousandths()));
    return *this;
}

Field& Field::operator=(const Field& other)
{
    const bool asItIs = &view_.connection_ == &other.view_.connection_
        && sameCells(other.view_.column(other.ordinal_).type, view_.column(ordinal_).type);
    if (!asItIs)
        return *this = other.text();
    view_.put(ordinal_, other.view_.cell(other.ordinal_));
    return *this;
}

bool Field::operator==(const char* other) const
{
    return QAnyStringView::equal(text(), other);
}

} // namespace storage
