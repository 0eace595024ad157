// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/manual.h"

#include "platform/help/viewer.h"

#include <QPointer>

namespace manual {

namespace {

// Nothing is read before the first F1, so that the start is not slower by it.
const help::Book& book()
{
    static const help::Book instance(QStringLiteral(":/help"));
    return instance;
}

help::Viewer& viewer()
{
    static QPointer<help::Viewer> instance;
    if (!instance)
        instance = new help::Viewer(book(), QStringLiteral("Kestrill Help"));
    return *instance;
}

} // namespace

void open(int number, const QString& window)
{
    if (number <= 0 && !book().knows(window))
        return; // a screen that goes by itself, and would take the help with it
    viewer().open(number > 0 ? QString::number(number) : window);
}

} // namespace manual
