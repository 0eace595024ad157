// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>
#include <QWidget>

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

/// A notification that nobody sees: a screen reader reads its name whenever it is shown. The toolkit has no event yet
/// that has words read out, and those of a changed name or description are not understood.
class Notice : public QWidget {
public:
    explicit Notice(QWidget* screen);
};

} // namespace forms
