// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/controls/text_box.h"

#include <QStringList>

/// Lets an amount of money grow in a text box, "$1234.50", and completes it when the box is left. "$.00" is the empty
/// state. It takes the box's GotFocus, KeyPress, Change and LostFocus.
class MoneyField {
public:
    /// The box is emptied when it gets the focus with one of `emptyTexts`.
    explicit MoneyField(forms::TextBox& box, const QStringList& emptyTexts = {});

    MoneyField(const MoneyField&) = delete;
    MoneyField& operator=(const MoneyField&) = delete;

private:
    void GotFocus();
    void KeyPress(int& KeyAscii);
    void Change();
    void LostFocus();
    bool takes_Decimal(const QString& text, int key) const;
    bool is_Before_Dollar(const QString& text) const;

    forms::TextBox& box_;
    QStringList emptyTexts_;
    int MoneyPos = 0; // the caret
    bool CaretAtStart = false; // a key was taken, or the focus came with the caret at 0
    bool NoDollar = false;
};
