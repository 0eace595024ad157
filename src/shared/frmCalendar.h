// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "platform/values/integer.h"

#include <QStringList>

/// The one way in which a date gets into a date field. A caller disables what must not be used meanwhile, sets
/// DateTarget and the date of calDate, and shows this screen with show_Modal; the calendar delivers the date and
/// enables again what was disabled.
class frmCalendar : public forms::Form {
public:
    frmCalendar();

    forms::Label lblHead2{*this, "lblHead2"};
    forms::MonthCalendar calDate{*this, "calDate"};
    forms::Label lblHead{*this, "lblHead"};

    static inline const QStringList MonthNames =
        QStringLiteral("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec").split(u' ');

    /// Which caller the next picked date belongs to.
    values::Integer DateTarget;

    /// Shows the calendar in front of `caller`, for the date of `target`, on the date that a field shows: today, where
    /// its text is no date.
    void show_For(forms::Form& caller, int target, const QString& shown);

private:
    void look();
    void Form_Activate() override;
    void Form_KeyPress(int& keyAscii) override;
    void Form_Unload(bool& cancel) override;
    void copy_Date_Out();
    void close_Calendar(int KeyAscii);
    bool has_Date();
};
