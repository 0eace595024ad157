// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/prepare.h"

#include "platform/forms/apply_look.h"
#include "platform/forms/boundary.h"
#include "platform/forms/input_gate.h"
#include "platform/forms/keyboard.h"
#include "platform/forms/screen_interface.h"
#include "platform/forms/stage.h"
#include "platform/forms/theme.h"

#include <QApplication>

void forms::prepare(QApplication& application, const look::Theme& theme)
{
    // A message box that closes while no screen is visible must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    look::setTheme(theme);
    look::apply(application);
    InputGate& gate = InputGate::instance();
    Stage& stage = Stage::instance();
    stage.attend(application, {[&gate](QWidget* now) { return gate.holdsBack(now); }, Keyboard::pressedOnForm});
    gate.guard(application);
    setFrameSteps([&gate] { gate.handlerEnded(); }, [&stage] { stage.handOnFront(); });
    describeWindows();
}
