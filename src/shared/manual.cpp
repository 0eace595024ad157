// SPDX-License-Identifier: GPL-3.0-or-later
#include "shared/manual.h"

#include "platform/help/viewer.h"

#include <QPointer>

namespace manual {

namespace {

// Nothing is read before the first F1, so that the start is not slower by it.
help::Viewer& viewer()
{
    static QPointer<help::Viewer> instance;
    if (!instance)
        instance = new help::Viewer(help::Book(QStringLiteral(":/help")), QStringLiteral("Kestrill Help"));
    return *instance;
}

} // namespace

void open(int number, const QString& window)
{
    viewer().open(number > 0 ? QString::number(number) : window);
}

} // namespace manual
