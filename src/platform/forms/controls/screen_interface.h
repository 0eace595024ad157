// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>

namespace forms {

class Form;

/// What assistive tools learn of a screen: it is a window, and its heading is its name. All screens have one title; the
/// heading tells them apart, also when it changes.
class ScreenInterface : public QAccessibleWidget {
public:
    ScreenInterface(QWidget& window, const Form& form);

    QString text(QAccessible::Text kind) const override;

private:
    const Form& form_;
};

/// Tells assistive tools of all windows of the program in this way from now on.
void describeWindows();

} // namespace forms
