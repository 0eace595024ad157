// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace forms {

/// A notification that nobody sees: a screen reader reads its name whenever it is shown. The toolkit has no event yet
/// that has words read out, and those of a changed name or description are not understood.
class Notice : public QWidget {
public:
    explicit Notice(QWidget* screen)
        : QWidget(screen)
    {
        setFixedSize(1, 1);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
};

} // namespace forms
