// SPDX-License-Identifier: GPL-3.0-or-later
#include "assets/money_field.h"

#include <algorithm>

namespace {

const QString Dollar = QStringLiteral("$");
const QString NoAmount = QStringLiteral(".00");

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool endsInTwoDecimals(const QString& text)
{
    const qsizetype length = text.size();
    return length >= 3 && text[length - 3] == u'.' && isDigit(text[length - 2]) && isDigit(text[length - 1]);
}

bool endsInDigitBehindPoint(const QString& text)
{
    return !text.isEmpty() && isDigit(text.back()) && text.contains(u'.');
}

// What a text lacks of two decimals.
QString missingDecimals(const QString& text)
{
    if (endsInTwoDecimals(text))
        return {};
    if (text.endsWith(u'.'))
        return QStringLiteral("00");
    return endsInDigitBehindPoint(text) ? QStringLiteral("0") : NoAmount;
}

// Backspace, point and digits. "/" passes too, on purpose.
bool isMoneyKey(int key)
{
    return key == forms::key::Backspace || (key >= '.' && key <= '9');
}

} // namespace

MoneyField::MoneyField(forms::TextBox& box, const QStringList& emptyTexts)
    : box_(box)
    , emptyTexts_(emptyTexts)
{
    box_.GotFocus = [this] { GotFocus(); };
    box_.KeyPress = [this](int& KeyAscii) { KeyPress(KeyAscii); };
    box_.Change = [this] { Change(); };
    box_.LostFocus = [this] { LostFocus(); };
}

void MoneyField::GotFocus()
{
    if (emptyTexts_.contains(box_.text()))
        box_.setText({});
    MoneyPos = box_.selectionStart();
    CaretAtStart = MoneyPos == 0;
    const auto length = static_cast<int>(box_.text().size());
    if (length == 0)
        return;
    box_.setSelectionStart(1);
    box_.setSelectionLength(length - 1);
}

void MoneyField::KeyPress(int& KeyAscii)
{
    MoneyPos = box_.selectionStart();
    if (KeyAscii == '.' && box_.text().contains(u'.')) {
        KeyAscii = forms::key::Refused;
        return;
    }
    if (!box_.text().isEmpty() && box_.selectionLength() == box_.text().size())
        box_.setText({});
    const QString text = box_.text();
    NoDollar = !text.startsWith(u'$');
    const bool isRefused =
        KeyAscii != forms::key::Backspace && (!takes_Decimal(text, KeyAscii) || is_Before_Dollar(text));
    CaretAtStart = true;
    if (isRefused || !isMoneyKey(KeyAscii))
        KeyAscii = forms::key::Refused;
}

void MoneyField::Change()
{
    const QString text = box_.text();
    if (text.size() == 1 && text != Dollar) {
        box_.setText(Dollar + text);
        box_.setSelectionStart(2);
    } else if (text == NoAmount) {
        box_.setText(Dollar + NoAmount);
        box_.setSelectionStart(1);
    }
}

void MoneyField::LostFocus()
{
    box_.setText(box_.text() + missingDecimals(box_.text()));
    if (!box_.text().startsWith(u'$'))
        box_.setText(Dollar + box_.text());
}

// With two decimals there no third one comes in; digits before the point still do, and so does what replaces a
// selection within the decimals.
bool MoneyField::takes_Decimal(const QString& text, int key) const
{
    if (!endsInTwoDecimals(text))
        return true;
    const qsizetype behindCaret = text.size() - MoneyPos;
    return behindCaret >= 3 || (box_.selectionLength() > 0 && key != '.');
}

bool MoneyField::is_Before_Dollar(const QString& text) const
{
    return MoneyPos == 0 && text != NoAmount && text.size() > 1 && !NoDollar && CaretAtStart;
}
