// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/prepare.h"

#include "platform/forms/boxes/failure_box.h"
#include "platform/forms/controls/screen_interface.h"
#include "platform/forms/input/input_filter.h"
#include "platform/forms/input/keyboard.h"
#include "platform/forms/looks/apply_look.h"
#include "platform/forms/looks/theme.h"
#include "platform/forms/runtime/boundary.h"
#include "platform/forms/screens/stage.h"

#include <QApplication>

void forms::prepare(QApplication& application, const look::Theme& theme)
{
    // A message box that closes while no screen is visible must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    look::setTheme(theme);
    look::apply(application);
    InputFilter& filter = InputFilter::instance();
    Stage& stage = Stage::instance();
    stage.attend(application, {[&filter](QWidget* now) { return filter.holdsBack(now); }, Keyboard::pressedOnForm});
    filter.guard(application);
    setFrameSteps([&filter] { filter.handlerEnded(); }, [&stage] { stage.handOnFront(); });
    describeWindows();
    setReportBox(showFailure);
}
