// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/address.h"

#include "platform/forms/look.h"
#include "platform/values/text.h"

#include <QWidget>

namespace behaviours = forms::behaviours;

namespace {

const QStringList states =
    QStringLiteral("AK AL AR AZ CA CO CT DC DE FL GA HI IA ID IL IN KS KY LA MA MD ME MI MN MO MS MT NC ND "
                   "NE NH NJ NM NV NY OH OK OR PA RI SC SD TN TX UT VA VT WA WI WV WY")
        .split(u' ');

constexpr int codeLength = 2;

} // namespace

address::StateBox::StateBox(forms::ComboBox& box, forms::Control& next)
    : box_(box)
    , next_(next)
{
    box_.addItems(states);
    box_.setWidthInCharacters(6);
    behaviours::selectOnFocus(box_);
    behaviours::twoLetterCode(box_);
    box_.Change = [this] {
        if (!byCode_)
            hop();
    };
    box_.LostFocus = [this] { setText(values::upper(box_.text())); };
}

void address::StateBox::setText(const QString& text)
{
    byCode_ = true;
    box_.setText(text);
    byCode_ = false;
}

void address::StateBox::hop()
{
    if (box_.text().size() >= codeLength)
        next_.setFocus();
}

void address::addPhone(forms::look::FieldRows& rows, const Phone& phone)
{
    const auto& [label, frames, pieces] = phone;
    frames[0]->setCaption("(");
    frames[1]->setCaption(")");
    frames[2]->setCaption("-");
    for (std::size_t at = 0; at < pieces.size(); ++at) {
        pieces[at]->setAlignment(forms::Alignment::Centre);
        pieces[at]->setWidthInCharacters(pieces[at]->maxLength() + 2);
        behaviours::digitsOnly(*pieces[at]);
    }
    rows.row(label, {frames[0], pieces[0], frames[1], pieces[1], frames[2], pieces[2]});
    label.nameFor(*pieces[0]);
    pieces[1]->setSpokenName(label.caption() + " Prefix");
    pieces[2]->setSpokenName(label.caption() + " 4 Digit Number");
}

void address::hopFrom(const forms::TextBox& piece, forms::Control& next)
{
    if (piece.text().size() >= piece.maxLength())
        next.setFocus();
}
