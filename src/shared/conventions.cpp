// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/conventions.h"

#include "platform/forms/look.h"

namespace conventions {

forms::Answer MsgBox(const QString& text, int flags)
{
    return forms::MsgBox(text, flags, Title);
}

bool confirmed(const QString& question, int flags)
{
    return MsgBox(question, flags) == forms::Answer::Yes;
}

QString orNone(const QString& text)
{
    return text.isEmpty() ? None : text;
}

QString withoutNone(const QString& stored)
{
    return stored == None ? QString() : stored;
}

void setHelpNumbers(int number, std::initializer_list<forms::Control*> controls)
{
    for (forms::Control* control : controls)
        control->setHelpNumber(number);
}

void setTabOrder(std::initializer_list<forms::Control*> controls)
{
    int place = 0;
    for (forms::Control* control : controls)
        control->setTabIndex(place++);
}

void showError(forms::Control& field)
{
    field.setBackColour(forms::look::colours().error);
}

void showNormal(forms::Control& field)
{
    field.setBackColour({});
}

} // namespace conventions
