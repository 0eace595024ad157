// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/forms/forms.h"
#include "platform/values/integer.h"
#include "shared/numbered_screen.h"

#include <QStringList>

#include <functional>

/// Who asks for a date.
struct DateCaller {
    NumberedScreen& screen;
    int DateTarget;
    std::function<void()> give_Back; ///< enables again what the caller has disabled
    std::function<void(const forms::MonthCalendar& date)> take_Date;
};

/// The one way in which a date gets into a date field. A caller disables what must not be used meanwhile, says
/// what is done with a date and how all is given back, and shows this screen; the calendar delivers the date and gives
/// back what was disabled.
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

    /// Shows the calendar in front of the caller, on the date of calDate.
    void show_For(const DateCaller& caller);

    /// The same on the date that a field shows: today, where its text is no date.
    void show_For(const DateCaller& caller, const QString& shown);

    /// "7/4/2006"
    static QString date_Text(const forms::MonthCalendar& date);

private:
    void look();
    void Form_Activate() override;
    void Form_KeyPress(int& keyAscii) override;
    void Form_Unload(bool& cancel) override;
    void copy_Date_Out();
    void close_Calendar(int KeyAscii);
    bool has_Date();
    const DateCaller* target() const;

    const DateCaller* Caller = nullptr; // while the calendar is shown
};
