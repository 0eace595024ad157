// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/report/document.h"
#include "platform/values/date.h"

#include <QLocale>
#include <QTime>

namespace report {

Moment now()
{
    return {values::Today().toText(), QLocale::c().toString(QTime::currentTime(), QStringLiteral("h:mm:ss AP"))};
}

} // namespace report
