// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/screens/painting.h"

#include "platform/forms/screens/stage.h"

#include <QElapsedTimer>

namespace forms {

void keepPainted()
{
    static QElapsedTimer sincePaint;
    Form* front = Stage::instance().active();
    if (!front || (sincePaint.isValid() && sincePaint.elapsed() < repaintMilliseconds))
        return;
    Stage::paint(*front);
    sincePaint.start();
}

} // namespace forms
