// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"

#include <QStringList>

#include <array>

namespace forms::look {
class FieldRows;
}

/// What the addresses of the household and of a bank have in common.
namespace address {

/// The box of a state, with the codes of all of them in its list. Two letters, typed, lead on to the next control; the
/// box is left in upper case. It takes the box's GotFocus, KeyPress, Change and LostFocus.
class StateBox {
public:
    StateBox(forms::ComboBox& box, forms::Control& next);

    StateBox(const StateBox&) = delete;
    StateBox& operator=(const StateBox&) = delete;

    /// Puts in a text which the user hasn't typed: it leads nowhere.
    void setText(const QString& text);

    /// Leads on where the code is there.
    void hop();

private:
    forms::ComboBox& box_;
    forms::Control& next_;
    bool byCode_ = false;
};

/// A phone number in its three boxes, which labels frame: "( ) -".
struct Phone {
    forms::Label& label;
    std::array<forms::Label*, 3> frames;
    std::array<forms::TextBox*, 3> pieces;
};

/// Makes a phone number a row of a screen; the boxes, whose limits are set, take digits.
void addPhone(forms::look::FieldRows& rows, const Phone& phone);

/// Leads on where a piece of a phone number is full.
void hopFrom(const forms::TextBox& piece, forms::Control& next);

} // namespace address
