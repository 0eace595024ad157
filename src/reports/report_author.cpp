// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_author.h"

#include "data/data_store.h"
#include "shared/conventions.h"

#include <QStringList>

QString report_Author(const storage::Snapshot& household)
{
    QStringList names;
    for (const int column : {General::First, General::Last})
        if (const QString name = household.text(0, column); name != "None")
            names.append(name);
    return names.isEmpty() ? conventions::Footer : names.join(u' ');
}
